#include "tests/tools/ToolRun.h"

#include "tools/openmap-release/FileAccess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace vasker {
namespace {

ToolOutcome run(const std::vector<std::string>& words,
                const std::string& locale,
                const std::string& inputPath,
                const std::string& outputPath,
                const std::string& errorPath) {
    std::vector<std::string> texts{VASKER_RELEASE_TOOL};
    texts.insert(texts.end(), words.begin(), words.end());
    std::vector<char*> arguments;
    for (std::string& text : texts) {
        arguments.push_back(text.data());
    }
    arguments.push_back(nullptr);
    std::string language = "LC_ALL=" + locale;
    std::array<char*, 2> environment{language.data(), nullptr};

    posix_spawn_file_actions_t streams{};
    posix_spawn_file_actions_init(&streams);
    posix_spawn_file_actions_addopen(&streams, STDIN_FILENO, inputPath.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(
        &streams, STDOUT_FILENO, outputPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(
        &streams, STDERR_FILENO, errorPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    pid_t process = 0;
    const int error = posix_spawn(
        &process, arguments[0], &streams, nullptr, arguments.data(), environment.data());
    posix_spawn_file_actions_destroy(&streams);
    if (error != 0) {
        throw std::runtime_error("the tool does not start");
    }
    int status = 0;
    ::waitpid(process, &status, 0);
    ToolOutcome outcome;
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    outcome.errors = contentOf(errorPath);
    return outcome;
}

} // namespace

ToolOutcome runTool(const std::vector<std::string>& words, const std::string& locale) {
    const ScratchFolder folder;
    ToolOutcome outcome =
        run(words, locale, "/dev/null", folder.path("output"), folder.path("errors"));
    outcome.output = contentOf(folder.path("output"));
    return outcome;
}

ToolOutcome runToolInto(const std::string& outputPath, const std::vector<std::string>& words) {
    const ScratchFolder folder;
    return run(words, "C", "/dev/null", outputPath, folder.path("errors"));
}

ToolOutcome runToolWith(const std::string& input, const std::vector<std::string>& words) {
    const ScratchFolder folder;
    ToolOutcome outcome =
        run(words, "C", folder.write("input", input), folder.path("output"), folder.path("errors"));
    outcome.output = contentOf(folder.path("output"));
    return outcome;
}

ScratchFolder::ScratchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "vasker-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no scratch folder");
    }
    m_path = name;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string ScratchFolder::path(std::string_view name) const {
    return (m_path / name).string();
}

std::string ScratchFolder::write(std::string_view name, std::string_view bytes) const {
    const std::filesystem::path file = m_path / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file.string();
}

std::size_t ScratchFolder::count() const {
    const std::filesystem::directory_iterator entries(m_path);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

std::string contentOf(const std::string& path) {
    constexpr std::size_t ample = 64U << 20U;
    return readFile(path, ample);
}

} // namespace vasker
