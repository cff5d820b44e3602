#include "client/completion.h"

#include "client/command_line.h"

#include <string_view>
#include <utility>

namespace l2fib
{

/// What is known of a command line before its last word.
struct Typed {
    CLI::App *command;
    CLI::Option *waiting = nullptr; ///< for its argument
    std::size_t positionals = 0;
};

static bool takes_argument(const CLI::Option &option)
{
    return option.nonpositional() && option.get_items_expected_max() > 0;
}

static bool is_option(std::string_view word)
{
    return word.size() > 1 && word.front() == '-';
}

static CLI::App *command_named(CLI::App &app, std::string_view name)
{
    const auto found = app.get_subcommands([name](const CLI::App *command) { return command->get_name() == name; });
    return found.empty() ? nullptr : found.front();
}

static Typed read_words(CLI::App &app, std::span<const char *const> words)
{
    Typed typed{&app};
    for (const char *word : words) {
        if (typed.waiting != nullptr) {
            typed.waiting = nullptr;
        } else if (is_option(word)) {
            CLI::Option *option = typed.command->get_option_no_throw(word);
            typed.waiting = option != nullptr && takes_argument(*option) ? option : nullptr;
        } else if (CLI::App *command = command_named(app, word); typed.command == &app && command != nullptr) {
            typed.command = command;
        } else {
            ++typed.positionals;
        }
    }
    return typed;
}

/// Collects what goes on with a word.
class Candidates
{
public:
    explicit Candidates(std::string_view begun) : begun_(begun) {}

    void add(const std::string &word, const std::string &description = {})
    {
        if (word.starts_with(begun_)) {
            lines_.append(word).append(description.empty() ? "" : "\t").append(description).append("\n");
        }
    }

    /// The arguments of an option, each after a text. Those that are no certain words are files when it has no name.
    void add_arguments(CLI::Option &option, const std::string &front = {})
    {
        const std::vector<std::string> words = words_of(option);
        for (const std::string &word : words) {
            add(front + word);
        }
        if (words.empty() && !option.nonpositional()) {
            lines_ += "FILE\n";
        }
    }

    void add_options(const CLI::App &command)
    {
        for (const CLI::Option *option : command.get_options()) {
            for (const std::string &name : option->get_lnames()) {
                add("--" + name, option->get_description());
            }
        }
    }

    void add_commands(CLI::App &app)
    {
        for (const CLI::App *command : app.get_subcommands({})) {
            add(command->get_name(), command->get_description());
        }
    }

    void add_positional(CLI::App &command, std::size_t number)
    {
        for (CLI::Option *option : command.get_options()) {
            if (!option->nonpositional() && (number < 1 || option->get_items_expected_max() > 1)) {
                add_arguments(*option);
                return;
            }
            number -= option->nonpositional() ? 0 : 1;
        }
    }

    std::string take() { return std::move(lines_); }

private:
    std::string_view begun_;
    std::string lines_;
};

std::string completions(CLI::App &app, std::span<const char *const> words)
{
    const std::string last = words.empty() ? "" : words.back();
    const Typed typed = read_words(app, words.first(words.empty() ? 0 : words.size() - 1));
    Candidates candidates(last);
    const std::size_t equals = is_option(last) ? last.find('=') : std::string::npos;
    if (typed.waiting != nullptr) {
        candidates.add_arguments(*typed.waiting);
    } else if (equals != std::string::npos) {
        CLI::Option *option = typed.command->get_option_no_throw(last.substr(0, equals));
        if (option != nullptr && takes_argument(*option)) {
            candidates.add_arguments(*option, last.substr(0, equals + 1));
        }
    } else if (last.starts_with('-')) {
        candidates.add_options(*typed.command);
    } else if (typed.command == &app) {
        candidates.add_commands(app);
    } else {
        candidates.add_positional(*typed.command, typed.positionals);
    }
    return candidates.take();
}

} // namespace l2fib
