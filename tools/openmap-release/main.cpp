// openmap-release: makes, checks and reads release files. Picks the command and prints its result.
#include "tools/openmap-release/Suggestion.h"
#include "tools/openmap-release/commands/CheckCommand.h"
#include "tools/openmap-release/commands/DiffCommand.h"
#include "tools/openmap-release/commands/ExportCommand.h"
#include "tools/openmap-release/commands/KindsCommand.h"
#include "tools/openmap-release/commands/ListCommand.h"
#include "tools/openmap-release/commands/PackCommand.h"
#include "tools/openmap-release/commands/PackagedRelease.h"
#include "tools/openmap-release/commands/ShowCommand.h"
#include "tools/openmap-release/commands/StatsCommand.h"
#include "tools/openmap-release/commands/SynthesizeCommand.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <exception>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace {

using vasker::Command;
using vasker::CommandResult;
using vasker::ExitStatus;

constexpr std::string_view toolName = "openmap-release";

std::vector<Command> commands() {
    return {vasker::checkCommand(),
            vasker::listCommand(),
            vasker::kindsCommand(),
            vasker::statsCommand(),
            vasker::showCommand(),
            vasker::exportCommand(),
            vasker::diffCommand(),
            vasker::packCommand(),
            vasker::synthesizeCommand()};
}

std::string usageLine(std::string_view synopsis) {
    return "usage: " + std::string(toolName) + " " + std::string(synopsis) + "\n";
}

std::string toolHelp() {
    std::string text = usageLine("COMMAND ...");
    text += "\nMakes, checks and reads the release files of the open map viewer.\n\n";
    for (const Command& command : commands()) {
        std::string name(command.name);
        name.resize(12, ' ');
        text += "  " + name + std::string(command.summary) + "\n";
    }
    text +=
        "\n\"" + std::string(toolName) + " COMMAND --help\" tells more about one of them, \"" +
        std::string(toolName) +
        " --version\"\nthe version. The file \"-\" is standard input, and as an output standard "
        "output. A reader that\ncloses the pipe early is no error: the exit status stays that "
        "of the command.\n";
    return text;
}

CommandResult wrongUsage(std::string_view message, std::string_view synopsis) {
    return {ExitStatus::failed,
            "",
            std::string(toolName) + ": " + std::string(message) + "\n" + usageLine(synopsis)};
}

bool asksForHelp(std::span<const std::string_view> words) {
    const auto end = std::ranges::find(words, std::string_view("--"));
    return std::find(words.begin(), end, std::string_view("--help")) != end;
}

CommandResult runCommand(const Command& command, std::span<const std::string_view> words) {
    if (asksForHelp(words)) {
        return {ExitStatus::ok, usageLine(command.synopsis) + "\n" + std::string(command.help), ""};
    }
    try {
        return command.run(vasker::Arguments(words, command.options));
    } catch (const vasker::RefusedRelease& refused) {
        return refused.result;
    } catch (const vasker::UsageError& error) {
        return wrongUsage(error.what(), command.synopsis);
    } catch (const std::exception& error) {
        return {ExitStatus::failed, "", std::string(toolName) + ": " + error.what() + "\n"};
    }
}

CommandResult runTool(std::span<const std::string_view> words) {
    if (words.empty()) {
        return wrongUsage("which command?", "COMMAND ...");
    }
    if (words.front() == "--help") {
        return {ExitStatus::ok, toolHelp(), ""};
    }
    if (words.front() == "--version") {
        return {ExitStatus::ok, std::string(toolName) + " " + VASKER_VERSION + "\n", ""};
    }
    const std::vector<Command> known = commands();
    const auto command = std::ranges::find(known, words.front(), &Command::name);
    if (command == known.end()) {
        std::vector<std::string_view> names;
        std::ranges::transform(known, std::back_inserter(names), &Command::name);
        names.insert(names.end(), {"--help", "--version"});
        return wrongUsage(std::string(words.front()) + ": unknown command" +
                              vasker::suggestion(words.front(), names),
                          "COMMAND ...");
    }
    return runCommand(*command, words.subspan(1));
}

/// Keeps the numbers of closed standard streams from being given to the files that commands open;
/// writing to such a stream still fails.
void reserveStandardStreams() {
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(number, F_GETFD) < 0) {
            static_cast<void>(::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY));
        }
    }
}

/// 0, or the error number.
int print(std::FILE* stream, std::string_view text) {
    const bool isWhole = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
    return isWhole && std::fflush(stream) == 0 ? 0 : errno;
}

} // namespace

int main(int count, char** values) {
    std::signal(SIGPIPE, SIG_IGN);
    reserveStandardStreams();
    const std::vector<std::string_view> words(values + std::min(count, 1), values + count);
    CommandResult result = runTool(words);
    // A reader that has seen enough closes the pipe: "openmap-release list FILE | head".
    if (const int error = print(stdout, result.output); error != 0 && error != EPIPE) {
        result.status = ExitStatus::failed;
        result.errors += std::string(toolName) +
                         ": standard output: " + std::generic_category().message(error) + "\n";
    }
    print(stderr, result.errors);
    return static_cast<int>(result.status);
}
