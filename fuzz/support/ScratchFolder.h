#pragma once
// Files for targets that read files: one folder for the whole run.

#include <stdlib.h> // mkdtemp

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace vasker {

class ScratchFolder {
  public:
    ScratchFolder() {
        std::string name = std::filesystem::temp_directory_path() / "vasker-fuzz-XXXXXX";
        m_path = mkdtemp(name.data());
    }
    ~ScratchFolder() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] std::string path() const { return m_path; }
    /// The path of the file `name` in the folder.
    [[nodiscard]] std::string path(const char* name) const { return m_path / name; }
    /// Makes the file `name` of these bytes, or replaces it, and returns its path.
    std::string write(const char* name, std::string_view bytes) const {
        const std::string file = path(name);
        std::ofstream(file, std::ios::binary | std::ios::trunc)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return file;
    }

  private:
    std::filesystem::path m_path;
};

} // namespace vasker
