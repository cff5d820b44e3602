#!/bin/bash
# completion_test.sh L2FIB_SHOW SOURCE_DIR: bash, zsh and fish complete the lines of completion.txt.
show=$(realpath "$1")
source=$(realpath "$2")
for shell in fish zsh; do
    if ! command -v $shell >/dev/null; then
        echo "completion_test.sh: $shell is needed; tools/install-packages check installs it" >&2
        exit 2
    fi
done
work=$(mktemp -d) && cd "$work" || exit 2
trap 'rm -rf "$work"' EXIT
failures=0
mkdir bin home
ln -s "$show" bin/l2fib-show
export PATH="$work/bin:$PATH" HOME="$work/home"
: >port.bin

# complete SHELL LINE: what the shell makes of the last word of the line. Each brings its own variables.
# shellcheck disable=SC2016
complete() {
    case $1 in
    bash) bash --norc -c '
        . /usr/share/bash-completion/bash_completion
        . "$0/completions/bash/l2fib-show"
        COMP_LINE=$1 COMP_POINT=${#1}
        read -ra COMP_WORDS <<<"${1//=/ = }"
        COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
        _l2fib_show l2fib-show "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
        last=${1##* } # of which bash keeps what is before the "="
        [[ $last == *=* ]] && COMPREPLY=("${COMPREPLY[@]/#/${last%%=*}=}")
        printf "%s\n" "${COMPREPLY[@]}"' "$source" "$2" ;;
    fish) fish --no-config -c '
        source $argv[1]/completions/fish/l2fib-show.fish
        complete -C $argv[2] | string replace -r "\t.*" ""' "$source" "$2" ;;
    zsh) "$source/tests/client/complete_in_zsh" "$source" "$2" ;;
    esac
}

while read -r line; do
    for shell in bash fish zsh; do
        made=$(complete $shell "${line%% => *}")
        if [ "$made" != "${line#* => }" ]; then
            echo "$shell: ${line%% => *}: became '$made'"
            failures=$((failures + 1))
        fi
    done
done < <(sed '/^#/d' "$source/tests/client/completion.txt")
exit $((failures > 0))
