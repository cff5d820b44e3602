#include "client/command_line.h"

#include "client/diagnostics.h"
#include "client/nearest_word.h"
#include "client/whole_number.h"

#include <algorithm>

namespace l2fib
{

constexpr std::string_view between_words = ", ";

static std::string listed(const std::vector<std::string> &words)
{
    std::string list;
    for (const std::string &word : words) {
        list.append(list.empty() ? "" : between_words).append(word);
    }
    return list;
}

CLI::Validator one_of(const std::vector<std::string> &words)
{
    const auto check = [words](const std::string &given) {
        return std::find(words.begin(), words.end(), given) != words.end()
                   ? std::string()
                   : spelled_out(given) + " is none of " + listed(words) + did_you_mean(given, words);
    };
    return {[check](std::string &given) { return check(given); }, "",
            listed(words)}; // by its name, words_of finds them
}

std::vector<std::string> words_of(CLI::Option &option)
{
    std::string list;
    try {
        list = option.get_validator(0)->get_name();
    } catch (const CLI::OptionNotFound &) {
        return {}; // nothing checks it
    }
    std::vector<std::string> words;
    while (!list.empty()) {
        words.push_back(list.substr(0, list.find(between_words)));
        list.erase(0, words.back().size() + between_words.size());
    }
    return words;
}

CLI::Validator number_up_to(std::uint64_t highest)
{
    const auto in_decimal = [highest](std::string &text) {
        const auto number = whole_number(text);
        if (!number || *number > highest) {
            return spelled_out(text) + " is no number from 0 to " + std::to_string(highest);
        }
        text = std::to_string(*number);
        return std::string();
    };
    return {in_decimal, ""};
}

CLI::Validator no_zeros_in_front()
{
    const auto check = [](const std::string &text) {
        const std::size_t zeros = text.find_first_not_of('0');
        const bool is_decimal = text.find_first_not_of("0123456789") == std::string::npos;
        const bool is_clear = zeros == 0 || zeros == std::string::npos || !is_decimal;
        return is_clear ? std::string()
                        : spelled_out(text) + " may be hex; write 0x" + text + ", or " + text.substr(zeros) +
                              " for the decimal number";
    };
    return {[check](std::string &text) { return check(text); }, ""};
}

/// The command that is given, or the program.
static const CLI::App &command_of(const CLI::App &app)
{
    const std::vector<CLI::App *> commands = app.get_subcommands();
    return commands.empty() ? app : *commands.back();
}

static std::string name_of(const CLI::App &command)
{
    return command.get_parent() == nullptr ? command.get_name()
                                           : name_of(*command.get_parent()) + " " + command.get_name();
}

static std::vector<std::string> options_of(const CLI::App &command)
{
    std::vector<std::string> names;
    for (const CLI::Option *option : command.get_options()) {
        for (const std::string &name : option->get_lnames()) {
            names.push_back("--" + name);
        }
    }
    return names;
}

static std::vector<std::string> commands_of(const CLI::App &app)
{
    std::vector<std::string> names;
    for (const CLI::App *command : app.get_subcommands({})) {
        names.push_back(command->get_name());
    }
    return names;
}

/// Advice for a word that is not known.
static std::string meant(const std::string &given, const std::vector<std::string> &words, const CLI::App &command)
{
    const std::string near = did_you_mean(given, words);
    return near.empty() ? "; see " + name_of(command) + " --help" : near;
}

/// What is wrong with a word that nothing takes.
static std::string explain_word(const CLI::App &app, const std::string &word)
{
    const CLI::App &command = command_of(app);
    if (word.size() > 1 && word.front() == '-') {
        const std::string option = word.substr(0, word.find('='));
        const std::vector<std::string> options = options_of(command);
        if (std::find(options.begin(), options.end(), option) != options.end()) {
            return option + ": comes after " + command.get_name();
        }
        return option + ": unknown option of " + name_of(command) + meant(option, options, command);
    }
    const std::string given = word.empty() ? "''" : word;
    return &command == &app ? given + ": neither an object nor a command" + meant(word, commands_of(app), app)
                            : given + ": one argument too many of " + name_of(command);
}

/// What is wrong with how often an option, or its argument, is given.
static std::string explain_count(const CLI::App &command, const CLI::ParseError &error)
{
    std::string text = error.what();
    std::string name = text.substr(0, text.find_first_of(": "));
    name = (name.starts_with('-') ? "" : "--") + name; // of flags, the error has no dashes
    const CLI::Option *option = command.get_option_no_throw(name);
    if (option == nullptr) {
        return text;
    }
    if (option->get_items_expected_max() == 0) {
        return name + ": takes no argument";
    }
    return name + (option->count() > 1 ? ": given more than once" : ": " + option->get_type_name() + " is missing");
}

std::string explain(const CLI::App &app, const CLI::ParseError &error)
{
    const bool is_word_unknown = dynamic_cast<const CLI::ExtrasError *>(&error) != nullptr;
    const bool is_word_missing = dynamic_cast<const CLI::RequiredError *>(&error) != nullptr;
    if (is_word_unknown || is_word_missing) {
        for (const std::string &word : app.remaining(true)) {
            if (word != "--") {
                return explain_word(app, word);
            }
        }
    }
    const CLI::App &command = command_of(app);
    if (is_word_missing) {
        return command.get_name() + ": " + error.what();
    }
    const bool is_count = dynamic_cast<const CLI::ArgumentMismatch *>(&error) != nullptr;
    return is_count ? explain_count(command, error) : error.what();
}

} // namespace l2fib
