#!/usr/bin/perl
# document_test.pl DOCUMENT L2FIB_SHOW SOURCE_DIR: the commands of a document print what it says.
#
# They are in its console blocks: "$ " begins a command, which goes on until the shell can read it, and what it prints
# comes after it. With L2FIB_ACCEPT_SCREENS in the environment, the document is brought up to date instead.
use strict;
use warnings;
use Cwd qw(abs_path);
use File::Basename qw(dirname);
use File::Temp qw(tempdir);

sub is_whole {
    open(my $shell, '|-', 'sh -n 2>/dev/null') or die "sh: $!\n";
    print $shell @_;
    return close $shell;
}

my ($document, $show, $source) = map { abs_path($_) } @ARGV;
open(my $in, '<', $document) or die "$document: $!\n";
my @lines = <$in>;
my $work = tempdir(CLEANUP => 1);
chdir $work or die "$work: $!\n";
symlink "$source/examples", 'examples' or die "examples: $!\n";
$ENV{PATH} = dirname($show) . ":$ENV{PATH}";

my ($accepted, $failures, $commands) = ('', 0, 0);
while (defined(my $line = shift @lines)) {
    $accepted .= $line;
    next if $line ne "```console\n";
    while (@lines && $lines[0] =~ /^\$ /) {
        $accepted .= $lines[0];
        my $command = substr shift @lines, 2;
        while (@lines && ($command =~ /\\\n$/ || !is_whole($command))) {
            $accepted .= $lines[0];
            $command .= shift @lines;
        }
        my $wanted = '';
        $wanted .= shift @lines while @lines && $lines[0] !~ /^(\$ |```)/;
        open(my $run, '-|', 'sh', '-c', "exec 2>&1\n$command") or die "sh: $!\n";
        my $printed = join '', <$run>;
        close $run; # its exit status is the reader's to ask for, with echo $?
        $accepted .= $printed;
        ++$commands;
        if ($printed ne $wanted && !$ENV{L2FIB_ACCEPT_SCREENS}) {
            print "$document says of this command:\n$command$wanted--- but it prints:\n$printed\n";
            ++$failures;
        }
    }
}
if ($ENV{L2FIB_ACCEPT_SCREENS}) {
    open(my $out, '>', $document) or die "$document: $!\n";
    print $out $accepted;
}
print "$document: no commands\n" if !$commands;
exit($failures > 0 || !$commands);
