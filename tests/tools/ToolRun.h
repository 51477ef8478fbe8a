#pragma once
// The real openmap-release executable, run in a folder of its own.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vasker {

struct ToolOutcome {
    int status = -1; ///< the exit status; 128 and more: ended by a signal
    std::string output;
    std::string errors;
};

/// Runs the tool with `words`, standard input from nowhere, and the locale `locale` (LC_ALL).
[[nodiscard]] ToolOutcome runTool(const std::vector<std::string>& words,
                                  const std::string& locale = "C");

/// As runTool(), with `input` on standard input.
[[nodiscard]] ToolOutcome runToolWith(const std::string& input,
                                      const std::vector<std::string>& words);

/// As runTool(), with standard output going to `outputPath`, which is opened for writing.
[[nodiscard]] ToolOutcome runToolInto(const std::string& outputPath,
                                      const std::vector<std::string>& words);

/// A folder that is removed with all it holds at the end of the test.
class ScratchFolder {
  public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    [[nodiscard]] std::string path(std::string_view name) const;
    /// Writes a file of this folder; returns its path.
    std::string write(std::string_view name, std::string_view bytes) const;
    /// How many files and folders it holds.
    [[nodiscard]] std::size_t count() const;

  private:
    std::filesystem::path m_path;
};

/// The bytes of a file of the tests.
[[nodiscard]] std::string contentOf(const std::string& path);

} // namespace vasker
