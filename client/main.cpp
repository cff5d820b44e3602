// l2fib-show: prints saved show data as the router's show commands do.
#include "client/capture_writer.h"
#include "client/check/check.h"
#include "client/command_line.h"
#include "client/completion.h"
#include "client/diagnostics.h"
#include "client/replay.h"
#include "client/schema.h"
#include "client/screen.h"
#include "client/show_data_file.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <limits>
#include <new>
#include <optional>
#include <span>
#include <sstream>
#include <unistd.h>

namespace l2fib
{

/// How the command line asks for something to be shown.
struct RenderingOptions {
    Rendering rendering;
    std::string color = "auto";
    bool raw = false;
};

/// What is said of one object on the command line.
struct Request {
    Capture capture;
    std::optional<std::uint64_t> monotonic_seconds;
    std::optional<std::uint64_t> wall_seconds;
    ChosenFormat format;
    std::string file;
    RenderingOptions rendering;
};

template <class Row>
static std::vector<std::string> names_of(std::span<const Row> table)
{
    std::vector<std::string> names;
    for (const Row &row : table) {
        names.emplace_back(row.name);
    }
    return names;
}

/// An option whose argument is the name of a row.
template <class Row>
static CLI::Option *add_named(CLI::App &app, const char *option, std::span<const Row> table,
                              const std::function<void(const Row &)> &take, const char *help)
{
    return app
        .add_option_function<std::string>(
            option, [table, take](const std::string &name) { take(*row_named(table, name)); }, help)
        ->check(one_of(names_of(table)));
}

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

template <class Number, class Field>
static CLI::Option *add_number(CLI::App &app, const char *option, Field &field, const char *type_name, const char *help)
{
    return app.add_option(option, field, help)
        ->type_name(type_name)
        ->transform(number_up_to(std::numeric_limits<Number>::max()));
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

static void add_rendering(CLI::App &app, RenderingOptions &options)
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

/// The rendering that is asked for; NO_COLOR in the environment means never.
static Rendering rendering_of(const RenderingOptions &options)
{
    Rendering rendering = options.rendering;
    const char *no_color = std::getenv("NO_COLOR");
    const bool is_welcome = isatty(STDOUT_FILENO) != 0 && (no_color == nullptr || *no_color == '\0');
    rendering.colored = options.color == "always" || (options.color == "auto" && is_welcome);
    return rendering;
}

static void add_example(CLI::App &app, const std::string &example)
{
    app.footer("Example:\n  " + example);
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

/// The options that choose captures of files.
static void add_selection(CLI::App &command, Selection &selection)
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

static CLI::App *add_replay_command(CLI::App &app, ReplayOptions &options, RenderingOptions &rendering)
{
    CLI::App &command = *app.add_subcommand("replay", "Show the captures of files");
    Selection &selection = options.selection;
    add_selection(command, selection);
    command
        .add_option_function<std::string>(
            "--status", [&selection](const std::string &status) { selection.failed = status == "failed"; },
            "Only views that ended so: ok or failed")
        ->check(one_of({"ok", "failed"}))
        ->type_name("STATUS");
    command.add_flag("--count", options.count, "Print how many objects, views and statuses there are, not their text");
    command.add_flag("--heading", options.heading,
                     "Print a line in front of each object that says which it is; with --json, give its file and line");
    command.add_option("FILE", options.files, "Captures, one a line; - for standard input (the default)")
        ->type_name("");
    add_rendering(command, rendering);
    command.get_option("--count")->excludes(command.get_option("--bytes"));
    add_example(command, "l2fib-show replay --object ac --status failed router.jsonl");
    return &command;
}

static CLI::App *add_check_command(CLI::App &app, CheckOptions &options)
{
    CLI::App &command = *app.add_subcommand("check", "Find where NPs disagree, with each other or with the RP");
    add_selection(command, options.selection);
    command.add_flag("--all", options.all, "Report also what most often rightly differs from NP to NP");
    command.add_flag("--json", options.json, "Print JSON, an object on each line, in place of text");
    command.add_flag("--list-rules", options.list_rules, "Print what is checked, and why");
    command
        .add_option("FILE", options.files,
                    "Captures, one a line; - for standard input (the default). Of an object that several files have, "
                    "what is in all of them is reported")
        ->type_name("");
    command.footer("Exit status: 0 all agree, 1 some do not, 2 some could not be checked.\n\n"
                   "Example:\n  l2fib-show check router.jsonl");
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
    ReplayOptions replay_options;
    const CLI::App *replay_command = add_replay_command(app, replay_options, request.rendering);
    CheckOptions check_options;
    const CLI::App *check_command = add_check_command(app, check_options);
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
    if (check_command->parsed()) {
        return check(check_options);
    }
    if (replay_command->parsed()) {
        replay_options.rendering = rendering_of(request.rendering);
        return replay(replay_options);
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
