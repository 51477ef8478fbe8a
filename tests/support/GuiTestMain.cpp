// The entry of tests that need a QGuiApplication; without a screen unless the environment names
// one.

#include <QGuiApplication>

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <link.h>

namespace {

/// Keeps what is loaded in memory to the end of the process: of a leak in a library that is gone,
/// as graphics drivers are by then, the sanitizer could not tell whose it is.
void keepLoadedLibraries() {
    dl_iterate_phdr(
        [](dl_phdr_info* library, std::size_t, void*) {
            dlopen(library->dlpi_name, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
            return 0;
        },
        nullptr);
}

} // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QV4_FORCE_INTERPRETER", "1"); // as the program does
    const QGuiApplication application(argc, argv);
    const int result = RUN_ALL_TESTS();
    keepLoadedLibraries();
    return result;
}
