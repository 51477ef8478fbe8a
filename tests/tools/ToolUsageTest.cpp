#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>

namespace vasker {
namespace {

void expectWrongUsage(const std::vector<std::string>& words, const std::string& message) {
    const ToolOutcome outcome = runTool(words);
    EXPECT_EQ(outcome.status, 2) << message;
    EXPECT_EQ(outcome.output, "") << message;
    EXPECT_TRUE(outcome.errors.starts_with("openmap-release: " + message + "\nusage: "))
        << outcome.errors;
}

std::vector<std::string> commandNames() {
    return {"check", "list", "kinds", "stats", "show", "export", "diff", "pack", "synthesize"};
}

/// The exit status of a line for the shell in which "TOOL" stands for the tool.
int shellStatus(const std::string& line) {
    std::string command = line;
    command.replace(command.find("TOOL"), 4, std::string("'") + VASKER_RELEASE_TOOL + "'");
    return WEXITSTATUS(std::system(command.c_str()));
}

TEST(ToolUsage, HelpGoesToStandardOutput) {
    const ToolOutcome outcome = runTool({"--help"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    for (const std::string& command : commandNames()) {
        EXPECT_NE(outcome.output.find("\n  " + command), std::string::npos) << command;
    }
}

TEST(ToolUsage, EachCommandHasItsOwnHelp) {
    for (const std::string& command : commandNames()) {
        const ToolOutcome outcome = runTool({command, "--help"});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.errors, "");
        EXPECT_TRUE(outcome.output.starts_with("usage: openmap-release " + command + " "))
            << outcome.output;
    }
}

TEST(ToolUsage, ACommandIsNeededAndMustBeKnown) {
    expectWrongUsage({}, "which command?");
    expectWrongUsage({"explode"}, "explode: unknown command");
    expectWrongUsage({"exprt"}, "exprt: unknown command, did you mean export?");
    expectWrongUsage({"--hlep"}, "--hlep: unknown command, did you mean --help?");
}

TEST(ToolUsage, OptionsAreKnownGivenOnceAndHaveTheirValue) {
    expectWrongUsage({"check", "f", "--verbose"}, "--verbose: unknown option");
    expectWrongUsage({"check", "f", "--explian"},
                     "--explian: unknown option, did you mean --explain?");
    expectWrongUsage({"check", "f", "-x"}, "-x: unknown option");
    expectWrongUsage({"check", "f", "--explain", "--explain"}, "--explain: given twice");
    expectWrongUsage({"check", "f", "--sha256"}, "--sha256: needs a value");
    expectWrongUsage({"check", "f", "--sha256", "--explain"}, "--sha256: needs a value");
    expectWrongUsage({"check", "f", "--explain=yes"}, "--explain: takes no value");
    expectWrongUsage({"kinds", "f", "--query", "x"}, "--query: unknown option");
}

TEST(ToolUsage, ExactlyOneFileIsRead) {
    expectWrongUsage({"check"}, "FILE: missing");
    expectWrongUsage({"list", "a", "b"}, "b: one operand too many");
    expectWrongUsage({"kinds"}, "FILE: missing");
    expectWrongUsage({"diff", "a"}, "NEW: missing");
    expectWrongUsage({"show", "a"}, "ID: missing");
    expectWrongUsage({"show", "a", "b", "c"}, "c: one operand too many");
}

TEST(ToolUsage, MakingAReleaseNeedsEveryOption) {
    expectWrongUsage({"pack", "--input", "d"}, "--output: missing");
    expectWrongUsage({"synthesize", "--records", "1"}, "--route-points: missing");
    expectWrongUsage({"synthesize", "--records", "many"},
                     "--records: \"many\" is not a whole number");
    expectWrongUsage({"synthesize", "--records", "-5"}, "--records: \"-5\" is not a whole number");
    expectWrongUsage({"synthesize", "extra"}, "extra: unexpected operand");
}

TEST(ToolUsage, TellsItsVersion) {
    const ToolOutcome outcome = runTool({"--version"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "openmap-release " VASKER_VERSION "\n");
}

TEST(ToolUsage, AClosedStandardOutputIsAFailure) {
    EXPECT_EQ(shellStatus("TOOL --help 2>/dev/null >&-"), 2);
}

TEST(ToolUsage, AReaderThatClosesThePipeIsNoError) {
    const ScratchFolder folder;
    const std::string release = folder.path("release.json");
    ASSERT_EQ(runTool({"synthesize",
                       "--records",
                       "5000",
                       "--route-points",
                       "0",
                       "--bytes",
                       "0",
                       "--seed",
                       "1",
                       "--output",
                       release})
                  .status,
              0);
    // More than a pipe holds, to a reader that is gone.
    const std::string errors = folder.path("errors");
    EXPECT_EQ(shellStatus("bash -c \"set -o pipefail; TOOL export '" + release +
                          "' --format csv 2>'" + errors + "' | true\""),
              0);
    EXPECT_EQ(contentOf(errors), "");
}

} // namespace
} // namespace vasker
