#include "client/options.h"

#include <cstdlib>
#include <unistd.h>

namespace l2fib
{

void add_rendering(CLI::App &app, RenderingOptions &options)
{
    app.add_flag("--json", options.rendering.json, "Print JSON, an object on each line, in place of text");
    app.add_flag("--bytes", options.rendering.bytes,
                 "Print what each byte of the show data is, in place of the screen; as JSON with --json");
    app.add_option("--color", options.color,
                   "Colour the table of --bytes: auto (on a terminal, the default), always or never")
        ->check(one_of({"auto", "always", "never"}))
        ->type_name("WHEN");
    app.add_flag("--raw", options.raw, "Send bytes that are no text to a terminal, too, which may obey them");
}

Rendering rendering_of(const RenderingOptions &options)
{
    Rendering rendering = options.rendering;
    const char *no_color = std::getenv("NO_COLOR");
    const bool is_welcome = isatty(STDOUT_FILENO) != 0 && (no_color == nullptr || *no_color == '\0');
    rendering.colored = options.color == "always" || (options.color == "auto" && is_welcome);
    return rendering;
}

void add_jobs(CLI::App &command, unsigned &jobs)
{
    constexpr unsigned most = 256;
    command.add_option("--jobs", jobs, "How many processes share the work (default: as many as there are processors)")
        ->type_name("N")
        ->transform(number_up_to(most));
}

unsigned jobs_of(unsigned jobs)
{
    if (isatty(STDOUT_FILENO) != 0) {
        return 1;
    }
    return jobs == 0 ? usual_jobs() : jobs;
}

void add_example(CLI::App &app, const std::string &example)
{
    app.footer("Example:\n  " + example);
}

void add_selection(CLI::App &command, Selection &selection)
{
    command.add_option("--object", selection.objects, "Only objects of this command; repeatable")
        ->check(one_of(names_of(objects())))
        ->type_name("OBJECT")
        ->allow_extra_args(false);
    add_number<std::uint32_t>(command, "--node", selection.node, "ID", "Only objects of this node");
    command.add_option("--direction", selection.direction, "Only this side: ingress or egress")
        ->check(one_of(names_of(directions())))
        ->type_name("SIDE");
    add_number<std::uint32_t>(command, "--xid", selection.xid, "XID",
                              "Only objects of this cross-connect ID, with the 0x that screens have before it")
        ->transform(no_zeros_in_front());
}

} // namespace l2fib
