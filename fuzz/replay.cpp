// Runs a target without a fuzzer: `fuzz-replay INPUT CORPUS COUNT` gives it each file of CORPUS,
// then COUNT changes of them, always the same ones. A find ends the program and prints the input.

#include <QCoreApplication>

#include <sanitizer/common_interface_defs.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using Target = int(const std::uint8_t* data, std::size_t size);

// Each target's function has its name here (CMakeLists.txt), as all of them are in one program.
extern "C" {
Target fuzz_archive, fuzz_bundle, fuzz_cache, fuzz_csv, fuzz_date_time, fuzz_decode,
    fuzz_description, fuzz_geojson, fuzz_image, fuzz_painting, fuzz_preferences, fuzz_release,
    fuzz_response, fuzz_text, fuzz_tile, fuzz_web_address;
}

namespace {

constexpr std::array<std::pair<std::string_view, Target*>, 16> targets{
    {{"archive", fuzz_archive},
     {"bundle", fuzz_bundle},
     {"cache", fuzz_cache},
     {"csv", fuzz_csv},
     {"date-time", fuzz_date_time},
     {"decode", fuzz_decode},
     {"description", fuzz_description},
     {"geojson", fuzz_geojson},
     {"image", fuzz_image},
     {"painting", fuzz_painting},
     {"preferences", fuzz_preferences},
     {"release", fuzz_release},
     {"response", fuzz_response},
     {"text", fuzz_text},
     {"tile", fuzz_tile},
     {"web-address", fuzz_web_address}}};

/// The greatest size of a changed input. A release has no more bytes that change something.
std::size_t longestOf(std::string_view input) {
    return input == "release" ? 64 : 8192;
}

std::string current; // NOLINT(cert-err58-cpp): an empty text

void printCurrent() {
    std::fprintf(stderr, "The input, %zu bytes in hexadecimal:\n", current.size());
    for (const char byte : current) {
        std::fprintf(stderr, "%02x", static_cast<unsigned int>(static_cast<unsigned char>(byte)));
    }
    std::fprintf(stderr, "\n");
}

void run(Target* target, std::string input) {
    current = std::move(input);
    // In memory of its very size, so that a step beyond its end is seen.
    const std::vector<std::uint8_t> bytes(current.begin(), current.end());
    target(bytes.data(), bytes.size());
}

std::vector<std::string> filesOf(const std::filesystem::path& corpus) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
        paths.push_back(entry.path());
    }
    std::ranges::sort(paths);
    std::vector<std::string> files;
    for (const std::filesystem::path& path : paths) {
        std::ifstream file(path, std::ios::binary);
        files.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return files;
}

/// Changes inputs as their numbers say, which are the same on every machine.
class Changes {
  public:
    explicit Changes(const std::vector<std::string>& seeds, std::size_t longest)
        : m_seeds(seeds), m_longest(longest) {}

    /// One of the seeds after one change to eight.
    std::string next() {
        std::string input = m_seeds[below(m_seeds.size())];
        for (std::size_t changes = 1 + below(8); changes > 0; --changes) {
            change(input);
        }
        input.resize(std::min(input.size(), m_longest));
        return input;
    }

  private:
    std::size_t below(std::size_t bound) { return m_numbers() % std::max<std::size_t>(bound, 1); }

    /// A piece of some input, short as a rule.
    std::string pieceOf(const std::string& input) {
        const std::size_t from = below(input.size());
        return input.substr(from, 1 + below(below(4) == 0 ? input.size() : 16));
    }

    void change(std::string& input) {
        constexpr std::string_view telling{"\x00\x01\x7f\x80\xff\n,\"{}[]09-", 15};
        const std::size_t place = below(input.size() + 1);
        switch (below(input.empty() ? 2 : 6)) {
        case 0:
            input.insert(place, 1 + below(4), telling[below(telling.size())]);
            break;
        case 1:
            input.insert(place, pieceOf(m_seeds[below(m_seeds.size())]));
            break;
        case 2:
            input.erase(place, 1 + below(below(4) == 0 ? input.size() : 8));
            break;
        case 3: {
            char& byte = input[below(input.size())];
            byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << below(8)));
            break;
        }
        case 4:
            input[below(input.size())] = telling[below(telling.size())];
            break;
        default:
            input.insert(place, pieceOf(input));
            break;
        }
    }

    const std::vector<std::string>& m_seeds;
    std::size_t m_longest;
    std::mt19937 m_numbers{20'261'122};
};

} // namespace

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments); // finds the decoders
    const auto* const found = std::ranges::find(
        targets, count == 4 ? arguments[1] : "", &decltype(targets)::value_type::first);
    if (found == targets.end()) {
        std::cerr << "usage: fuzz-replay INPUT CORPUS COUNT\n";
        return 2;
    }
    const std::vector<std::string> seeds = filesOf(arguments[2]);
    if (seeds.empty()) {
        std::cerr << "there is nothing to start from\n";
        return 1;
    }
    __sanitizer_set_death_callback(printCurrent);
    for (const std::string& seed : seeds) {
        run(found->second, seed);
    }
    Changes changes(seeds, longestOf(found->first));
    const int executions = std::stoi(arguments[3]);
    for (int done = 0; done < executions; ++done) {
        run(found->second, changes.next());
    }
    std::cout << seeds.size() << " seeds and " << executions << " changes\n";
    return 0;
}
