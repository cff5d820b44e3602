# Sums what `llvm-cov show -show-branches=count` prints. A branch in a template counts once, and is reached when one of
# the template's instantiations reaches it.

function reach(outcome, count) {
    if (!(outcome in reached)) {
        reached[outcome] = 0
        order[++outcomes] = outcome
    }
    if (count != 0) {
        reached[outcome] = 1
    }
}

/^\/.*:$/ { file = substr($0, length(here) + 1, length($0) - length(here) - 1) }

/^ *[0-9]+\| *[0-9.]+[kMG]?\|/ {
    split($0, column, "|")
    ++line_count
    if (column[2] + 0 == 0) {
        missing[file] = missing[file] " " column[1] + 0
        ++missing_lines
    }
}

/Branch \([0-9]+:[0-9]+\): \[True:/ {
    match($0, /[0-9]+:[0-9]+/)
    place = substr($0, RSTART, RLENGTH)
    split($0, count, /True: |, False: |\]/)
    reach(file SUBSEP place SUBSEP "true", count[2] + 0)
    reach(file SUBSEP place SUBSEP "false", count[3] + 0)
}

END {
    for (i = 1; i <= outcomes; ++i) {
        if (!reached[order[i]]) {
            split(order[i], part, SUBSEP)
            unreached[part[1]] = unreached[part[1]] " " part[2] " " part[3]
            ++missing_branches
        }
    }
    line_percent = 100 - 100 * missing_lines / line_count
    branch_percent = 100 - 100 * missing_branches / outcomes
    printf "%s reach %.1f%% of %d lines and %.1f%% of %d branches.\n", title, line_percent, line_count, branch_percent, outcomes
    for (file in missing) {
        print "  " file ": lines" missing[file] | "sort"
    }
    for (file in unreached) {
        print "  " file ": never" unreached[file] | "sort"
    }
    exit line_percent < lines || branch_percent < branches
}
