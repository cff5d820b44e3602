// l2fib-show: prints saved show data as the router's show commands do.
#include "client/capture_writer.h"
#include "client/completion.h"
#include "client/diagnostics.h"
#include "client/file_commands.h"
#include "client/options.h"
#include "client/schema.h"
#include "client/screen.h"
#include "client/show_data_file.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <cstdio>
#include <exception>
#include <new>
#include <optional>
#include <span>
#include <sstream>

namespace l2fib
{

/// What is said of one object on the command line.
struct Request {
    Capture capture;
    std::optional<std::uint64_t> monotonic_seconds;
    std::optional<std::uint64_t> wall_seconds;
    ChosenFormat format;
    std::string file;
    RenderingOptions rendering;
};

static void add_direction_and_view(CLI::App &app, Capture &capture)
{
    const std::span<const Direction> sides = directions();
    auto *ingress = app.add_flag_callback(
        "--ingress", [&capture, sides] { capture.direction = &sides.front(); }, "The ingress side (the default)");
    app.add_flag_callback(
           "--egress", [&capture, sides] { capture.direction = &sides[1]; }, "The egress side")
        ->excludes(ingress);
    add_named<View>(
        app, "--view", views(), [&capture](const View &view) { capture.view = &view; },
        "detail, private or inconsistent (default: detail; private for nhop and resources)")
        ->type_name("VIEW");
}

static void add_router(CLI::App &app, Request &request)
{
    Router &router = request.capture.router;
    add_number<std::uint32_t>(app, "--node", request.capture.node, "ID", "The node of the object (default: 0)");
    add_number<std::uint32_t>(app, "--card", router.card_type, "CODE",
                              "The card-type code of the node (default: 0x1e1000)");
    add_named<ByteOrder>(
        app, "--byte-order", byte_orders(), [&request](const ByteOrder &order) { request.capture.byte_order = &order; },
        "How the line card stores its own numbers: little (the default) or big")
        ->type_name("ORDER");
    add_number<std::uint32_t>(app, "--virtual-interface", router.virtual_interfaces, "HANDLE",
                              "The handle of a virtual interface; repeatable")
        ->allow_extra_args(false);
    auto *monotonic = add_number<std::uint64_t>(app, "--monotonic", request.monotonic_seconds, "SECONDS",
                                                "The router's monotonic clock when the show data was taken");
    auto *wall = add_number<std::uint64_t>(app, "--wall", request.wall_seconds, "SECONDS",
                                           "Its wall clock, since 1970, at the same time");
    monotonic->needs(wall);
    wall->needs(monotonic);
    app.add_option("--time-zone", router.time_zone, "Its time zone, as POSIX writes it: CET-1CEST,M3.5.0,M10.5.0/3")
        ->type_name("ZONE")
        ->check([](const std::string &zone) {
            return is_time_zone(zone) ? std::string()
                                      : spelled_out(zone) + " is no time zone as POSIX writes it, like CET-1CEST";
        });
}

static void add_input(CLI::App &app, Request &request)
{
    auto *format = add_named<ShowDataFormat>(
        app, "--format", show_data_formats,
        [&request](const ShowDataFormat &named) {
            request.format = {named.hex, true};
        },
        "raw (the default; given, nothing is taken for another format), hex (any of those that follow), plain, xxd or "
        "hexdump");
    format->type_name("FORMAT");
    app.add_flag_callback(
           "--hex", [&request] { request.format.hex = HexForm::any; }, "The same as --format hex")
        ->excludes(format);
    app.add_option("FILE", request.file, "Show data; - for standard input")->required()->type_name("");
}

static void add_object_command(CLI::App &app, const Object &object, Request &request)
{
    CLI::App &command = *app.add_subcommand(object.name, std::string("Show: ") + object.description);
    if (object.has_views()) {
        add_direction_and_view(command, request.capture);
    }
    add_router(command, request);
    add_input(command, request);
    add_rendering(command, request.rendering);
    add_example(command, std::string("l2fib-show ") + object.name + " --hex dump.txt");
    command.callback([&request, &object] { request.capture.object = &object; });
}

static CLI::App *add_capture_command(CLI::App &app, Request &request)
{
    CLI::App &command = *app.add_subcommand("capture", "Write show data as a capture, with the clocks of now");
    add_named<Object>(
        command, "OBJECT", objects(), [&request](const Object &object) { request.capture.object = &object; },
        "What the show data is of: the name of its command")
        ->required()
        ->type_name("");
    add_direction_and_view(command, request.capture);
    add_router(command, request);
    add_input(command, request);
    add_example(command, "l2fib-show capture ac --egress --node 3 ac.bin >>router.jsonl");
    return &command;
}

static CLI::App *add_help_command(CLI::App &app, std::string &subject)
{
    CLI::App &command = *app.add_subcommand("help", "Print the help of a command");
    std::vector<std::string> names;
    for (const CLI::App *any : app.get_subcommands({})) {
        names.push_back(any->get_name());
    }
    command.add_option("COMMAND", subject, "A command; without it, all of them")->check(one_of(names))->type_name("");
    return &command;
}

/// Flags are given or not: --json=no is a mistake.
static void take_no_arguments(CLI::App &app)
{
    for (CLI::App *command : app.get_subcommands({})) {
        for (CLI::Option *option : command->get_options()) {
            if (option->get_items_expected_max() == 0) {
                option->disable_flag_override();
            }
        }
    }
}

/// Reads the show data of a request. False, having said why, when there is none.
static bool complete(Request &request)
{
    ShowDataFile file = read_show_data(request.file, request.format);
    if (!file.error.empty()) {
        complain(file.error);
        return false;
    }
    request.capture.show_data = std::move(file.show_data);
    if (request.wall_seconds) {
        request.capture.router.clocks = Clocks{*request.monotonic_seconds, *request.wall_seconds};
    }
    return true;
}

static ExitStatus show(Request &request)
{
    if (!complete(request)) {
        return unusable;
    }
    Renderer renderer(rendering_of(request.rendering));
    const std::uint32_t status = renderer.show(request.capture);
    renderer.flush();
    if (!output_arrived()) {
        return unusable;
    }
    if (status == 0) {
        return shown;
    }
    return request.rendering.rendering.json ? view_failed : report_status(status); // JSON has said how
}

static ExitStatus capture(Request &request)
{
    if (!complete(request)) {
        return unusable;
    }
    Router &router = request.capture.router;
    router.clocks = router.clocks.value_or(clocks_now());
    router.time_zone = router.time_zone.value_or(local_time_zone());
    std::printf("%s\n", format_capture(request.capture).c_str());
    return output_arrived() ? shown : unusable;
}

static ExitStatus print(const std::string &text)
{
    std::fputs(text.c_str(), stdout);
    return output_arrived() ? shown : unusable;
}

static ExitStatus run(int argc, char **argv)
{
    CLI::App app{"Prints saved show data of the layer-2 forwarding information base.\n\n"
                 "Exit status: 0 all is shown, 1 a view reported a failure, 2 wrong usage or unreadable input.",
                 "l2fib-show"};
    app.require_subcommand(0, 1); // none is reported below, so that an unknown one is reported by its name
    app.set_version_flag("-V,--version", "l2fib-show " L2FIB_VERSION);
    add_example(app, "l2fib-show replay router.jsonl\n  l2fib-show ac --egress ac.bin");
    Request request;
    for (const Object &object : objects()) {
        add_object_command(app, object, request);
    }
    const CLI::App *capture_command = add_capture_command(app, request);
    FileCommands file_commands(app, request.rendering);
    const CLI::App *schema_command = app.add_subcommand("schema", "Print the JSON Schema of what --json prints");
    std::string help_subject;
    const CLI::App *help_command = add_help_command(app, help_subject);
    take_no_arguments(app);
    const std::span<const char *const> words(argv, static_cast<std::size_t>(argc));
    if (words.size() > 1 && words[1] == std::string_view("--complete")) { // the shells ask
        return print(completions(app, words.subspan(2)));
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success &asked) {
        std::ostringstream text;
        app.exit(asked, text, text);
        return print(text.str());
    } catch (const CLI::ParseError &error) {
        return complain(explain(app, error));
    }
    if (app.get_subcommands().empty()) {
        return complain("an object is required; see l2fib-show --help");
    }
    const auto raw_text = request.rendering.raw ? std::make_optional<UnchangedText>() : std::nullopt;
    if (help_command->parsed()) {
        app.clear(); // or it would print the help of this command
        return print(help_subject.empty() ? app.help() : app.get_subcommand(help_subject)->help(app.get_name()));
    }
    if (schema_command->parsed()) {
        return print(std::string(published_schema()));
    }
    if (const auto status = file_commands.run()) {
        return *status;
    }
    return capture_command->parsed() ? capture(request) : show(request);
}

static ExitStatus run_to_end(int argc, char **argv)
{
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc &) {
        return complain("out of memory");
    } catch (const std::exception &error) {
        return complain(error.what());
    }
}

} // namespace l2fib

int main(int argc, char **argv)
{
    std::signal(SIGPIPE, SIG_DFL); // who closes a pipe has seen enough: it ends in silence, whatever was inherited
    std::signal(SIGXFSZ, SIG_IGN); // a file that may not grow is an output that did not arrive
    try {
        const l2fib::Screen screen;
        return l2fib::run_to_end(argc, argv);
    } catch (const std::exception &error) { // of the screen
        return l2fib::complain(error.what());
    }
}
