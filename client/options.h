// Options that several commands have.
#pragma once

#include "client/capture_files.h"
#include "client/command_line.h"
#include "client/rendering.h"

#include <CLI/CLI.hpp>

#include <limits>
#include <span>
#include <string>
#include <vector>

namespace l2fib
{

template <class Row>
std::vector<std::string> names_of(std::span<const Row> table)
{
    std::vector<std::string> names;
    for (const Row &row : table) {
        names.emplace_back(row.name);
    }
    return names;
}

/// An option whose argument is the name of a row.
template <class Row>
CLI::Option *add_named(CLI::App &app, const char *option, std::span<const Row> table,
                       const std::function<void(const Row &)> &take, const char *help)
{
    return app
        .add_option_function<std::string>(
            option, [table, take](const std::string &name) { take(*row_named(table, name)); }, help)
        ->check(one_of(names_of(table)));
}

/// An option whose argument is a number as captures have it.
template <class Number, class Field>
CLI::Option *add_number(CLI::App &app, const char *option, Field &field, const char *type_name, const char *help)
{
    return app.add_option(option, field, help)
        ->type_name(type_name)
        ->transform(number_up_to(std::numeric_limits<Number>::max()));
}

/// How the command line asks for something to be shown.
struct RenderingOptions {
    Rendering rendering;
    std::string color = "auto";
    bool raw = false;
};

void add_rendering(CLI::App &app, RenderingOptions &options);

/// The rendering that is asked for; NO_COLOR in the environment means never.
Rendering rendering_of(const RenderingOptions &options);

/// The options that choose captures of files.
void add_selection(CLI::App &command, Selection &selection);

/// The option that says how many processes share the work.
void add_jobs(CLI::App &command, unsigned &jobs);

/// How many that are: where a person looks on, one, as a terminal is slower than any of them.
unsigned jobs_of(unsigned jobs);

void add_example(CLI::App &app, const std::string &example);

} // namespace l2fib
