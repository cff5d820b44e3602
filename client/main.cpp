// l2fib-show: prints saved show data as the router's show commands do.
#include "client/capture.h"
#include "client/offline_platform.h"
#include "platform/platform.h"
#include "zel_l2fib/show.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <map>
#include <optional>
#include <string>

namespace l2fib
{

enum ExitStatus : int { shown = 0, view_failed = 1, not_started = 2 };

struct ObjectCommand {
    const char *name;
    std::uint32_t objtype;
    const char *help;
};

static constexpr ObjectCommand object_commands[] = {
    {"ac", L2FIB_OBJTYPE_AC, "Show an attachment circuit"},
    {"pw", L2FIB_OBJTYPE_MPLS, "Show a pseudowire"},
    {"bridge", L2FIB_OBJTYPE_BRIDGE, "Show a bridge"},
    {"bridge-port", L2FIB_OBJTYPE_BRIDGE_PORT, "Show a bridge port"},
    {"mac", L2FIB_OBJTYPE_BRIDGE_MAC, "Show a MAC address of a bridge"},
};

static const std::map<std::string, std::uint32_t> views = {
    {"detail", L2FIB_VIEW_DETAIL},
    {"private", L2FIB_VIEW_PRIVATE},
    {"inconsistent", L2FIB_VIEW_INCONSISTENT},
};

struct Arguments {
    std::uint32_t objtype = L2FIB_OBJTYPE_NONE;
    std::uint32_t node = 0;
    std::optional<std::uint32_t> card;
    bool ingress = false;
    bool egress = false;
    std::string view = "detail";
    std::string file;
};

static void add_object_command(CLI::App &app, const ObjectCommand &command, Arguments &arguments)
{
    CLI::App &object = *app.add_subcommand(command.name, command.help);
    auto *ingress = object.add_flag("--ingress", arguments.ingress, "The ingress side (the default)");
    object.add_flag("--egress", arguments.egress, "The egress side")->excludes(ingress);
    object.add_option("--view", arguments.view, "The view (default: detail)")
        ->check(CLI::IsMember(views))
        ->type_name("VIEW");
    object.add_option("--node", arguments.node, "The node of the object (default: 0)")->type_name("ID");
    object.add_option("--card", arguments.card, "The card-type code of the node (default: 0x1e1000)")
        ->type_name("CODE");
    object.add_option("FILE", arguments.file, "Raw show data; - for standard input")->required()->type_name("");
    object.callback([&arguments, objtype = command.objtype] { arguments.objtype = objtype; });
}

static int complain(const std::string &what)
{
    std::fprintf(stderr, "l2fib-show: %s\n", what.c_str());
    return not_started;
}

static int show(const Arguments &arguments)
{
    Capture capture = read_capture(arguments.file);
    if (!capture.error.empty()) {
        return complain(capture.error);
    }
    if (arguments.card) {
        set_card_type(*arguments.card);
    }
    const std::uint32_t status =
        zel_l2fib_print_internal(arguments.objtype, arguments.node, arguments.egress ? L2FIB_EGRESS : L2FIB_INGRESS,
                                 views.at(arguments.view), capture.bytes.data(), capture.bytes.size());
    std::fflush(stdout);
    if (status != 0) {
        std::fprintf(stderr, "l2fib-show: status 0x%08x: %s\n", status, status_text(status));
        return view_failed;
    }
    return shown;
}

static int run(int argc, char **argv)
{
    CLI::App app{"Prints saved show data of the layer-2 forwarding information base", "l2fib-show"};
    app.require_subcommand(0, 1); // none is reported below, so that an unknown one is reported by its name
    Arguments arguments;
    for (const ObjectCommand &command : object_commands) {
        add_object_command(app, command, arguments);
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success &help) {
        return app.exit(help);
    } catch (const CLI::ParseError &error) {
        return complain(error.what());
    }
    if (app.get_subcommands().empty()) {
        return complain("an object is required; see l2fib-show --help");
    }
    return show(arguments);
}

} // namespace l2fib

int main(int argc, char **argv)
{
    try {
        return l2fib::run(argc, argv);
    } catch (const std::exception &error) {
        return l2fib::complain(error.what());
    }
}
