// Whatever the file of the settings holds, a value that is set is read back, and every other line
// stays, byte for byte and in its order.

#include "fuzz/support/Require.h"
#include "fuzz/support/ScratchFolder.h"
#include "platform/files/PreferenceFile.h"

#include <cstddef>
#include <cstdint>

using namespace vasker;

namespace {

PreferenceFile::Lines without(PreferenceFile::Lines lines, const QByteArray& start) {
    lines.removeIf([&](const QByteArray& line) { return line.startsWith(start); });
    return lines;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder folder;
    const QString key = QStringLiteral("open-map.basemap");
    const PreferenceFile file(QString::fromStdString(
        folder.write("preferences", {reinterpret_cast<const char*>(data), size})));
    const auto before = file.read();
    require(before.has_value());
    (void)PreferenceFile::value(*before, key);
    const PreferenceFile::Values values{{key, QStringLiteral("hybrid")}};
    const auto after = file.set(values);
    require(after && file.read() == after);
    require(PreferenceFile::value(*after, key) == QStringLiteral("hybrid"));
    require(without(*after, "open-map.basemap=") == without(*before, "open-map.basemap="));
    require(file.set(values) == after);
    return 0;
}
