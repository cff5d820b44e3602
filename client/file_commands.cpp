#include "client/file_commands.h"

namespace l2fib
{

void FileCommands::add_replay(CLI::App &command)
{
    add_selection(command, replay_.selection);
    command
        .add_option_function<std::string>(
            "--status", [this](const std::string &status) { replay_.selection.failed = status == "failed"; },
            "Only views that ended so: ok or failed")
        ->check(one_of({"ok", "failed"}))
        ->type_name("STATUS");
    command.add_flag("--count", replay_.count, "Print how many objects, views and statuses there are, not their text");
    command.add_flag("--heading", replay_.heading,
                     "Print a line in front of each object that says which it is; with --json, give its file and line");
    command.add_option("FILE", replay_.files, "Captures, one a line; - for standard input (the default)")
        ->type_name("");
    add_jobs(command, jobs_);
    add_rendering(command, rendering_);
    command.get_option("--count")->excludes(command.get_option("--bytes"));
    add_example(command, "l2fib-show replay --object ac --status failed router.jsonl");
}

void FileCommands::add_check(CLI::App &command)
{
    add_selection(command, check_.selection);
    command.add_flag("--all", check_.all, "Report also what most often rightly differs from NP to NP");
    command.add_flag("--json", check_.json, "Print JSON, an object on each line, in place of text");
    add_jobs(command, jobs_);
    command.add_flag("--list-rules", check_.list_rules, "Print what is checked, and why");
    command
        .add_option("FILE", check_.files,
                    "Captures, one a line; - for standard input (the default). Of an object that several files have, "
                    "what is in all of them is reported")
        ->type_name("");
    command.footer("Exit status: 0 all agree, 1 some do not, 2 some could not be checked.\n\n"
                   "Example:\n  l2fib-show check router.jsonl");
}

void FileCommands::add_diff(CLI::App &command)
{
    add_selection(command, diff_.selection);
    command.add_flag("--all", diff_.all, "Print also what changes by itself: counters, pointers and times");
    command.add_flag("--json", diff_.json, "Print JSON, an object on each line, in place of text");
    command.add_option("BEFORE", diff_.before, "Captures, one a line; - for standard input")->required()->type_name("");
    command.add_option("AFTER", diff_.after, "Captures of the same objects, taken later")->required()->type_name("");
    command.footer("Exit status: 0 alike, 1 not, 2 some could not be compared.\n\n"
                   "Example:\n  l2fib-show diff monday.jsonl tuesday.jsonl");
}

void FileCommands::add_page(CLI::App &command)
{
    add_selection(command, page_.selection);
    command.add_option("FILE", page_.files, "Captures, one a line; - for standard input (the default)")->type_name("");
    command.footer("Exit status: 0 all agree, 1 some do not, 2 some could not be checked.\n\n"
                   "Example:\n  l2fib-show page router.jsonl >router.html");
}

FileCommands::FileCommands(CLI::App &app, RenderingOptions &rendering) : rendering_(rendering)
{
    const auto add = [&](const char *name, const char *description, auto add_options, auto run) {
        CLI::App &command = *app.add_subcommand(name, description);
        (this->*add_options)(command);
        command.callback([this, run] { asked_for_ = run; });
    };
    add("replay", "Show the captures of files", &FileCommands::add_replay, [this] {
        replay_.rendering = rendering_of(rendering_);
        replay_.jobs = jobs_of(jobs_);
        return replay(replay_);
    });
    add("check", "Find where NPs disagree, with each other or with the RP", &FileCommands::add_check, [this] {
        check_.jobs = jobs_of(jobs_);
        return check(check_);
    });
    add("diff", "Print what has changed between two files of captures", &FileCommands::add_diff,
        [this] { return diff(diff_); });
    add("page", "Write captures, and what check finds in them, as a page of HTML", &FileCommands::add_page,
        [this] { return write_page(page_); });
}

std::optional<ExitStatus> FileCommands::run()
{
    return asked_for_ ? std::optional(asked_for_()) : std::nullopt;
}

} // namespace l2fib
