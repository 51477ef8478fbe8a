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

TEST(ToolUsage, HelpGoesToStandardOutput) {
    const ToolOutcome outcome = runTool({"--help"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    for (const char* command : {"check", "list", "kinds", "pack", "synthesize"}) {
        EXPECT_NE(outcome.output.find(std::string("\n  ") + command), std::string::npos) << command;
    }
}

TEST(ToolUsage, EachCommandHasItsOwnHelp) {
    for (const std::string command : {"check", "list", "kinds", "pack", "synthesize"}) {
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
}

TEST(ToolUsage, OptionsAreKnownGivenOnceAndHaveTheirValue) {
    expectWrongUsage({"check", "f", "--verbose"}, "--verbose: unknown option");
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
}

TEST(ToolUsage, MakingAReleaseNeedsEveryOption) {
    expectWrongUsage({"pack", "--input", "d"}, "--output: missing");
    expectWrongUsage({"synthesize", "--records", "1"}, "--route-points: missing");
    expectWrongUsage({"synthesize", "--records", "many"},
                     "--records: \"many\" is not a whole number");
    expectWrongUsage({"synthesize", "--records", "-5"}, "--records: \"-5\" is not a whole number");
    expectWrongUsage({"synthesize", "extra"}, "extra: unexpected operand");
}

TEST(ToolUsage, AClosedStandardOutputIsAFailure) {
    const std::string closed = std::string("'") + VASKER_RELEASE_TOOL + "' --help 2>/dev/null >&-";
    EXPECT_EQ(WEXITSTATUS(std::system(closed.c_str())), 2);
}

} // namespace
} // namespace vasker
