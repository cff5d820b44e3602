# fish completion for l2fib-show, which says itself what may come next

function __l2fib_show_complete
    set -l before (commandline -opc)
    set -l current (commandline -ct)
    for line in ($before[1] --complete $before[2..] "$current" 2>/dev/null)
        if test "$line" = FILE
            __fish_complete_path "$current"
        else
            echo $line
        end
    end
end

complete -c l2fib-show -f -a '(__l2fib_show_complete)'
