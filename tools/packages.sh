# The Debian 12 packages that the project needs, and the step that installs those that are missing.
# Sourced by ./run and ./test.

# To configure and build the programs.
build_packages=(
    g++ cmake ninja-build pkg-config python3
    qt6-base-dev qt6-declarative-dev qt6-declarative-dev-tools
    qt6-shadertools-dev qt6-shader-baker qt6-svg-dev
    qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools linguist-qt6
    libgl-dev libvulkan-dev
    libsimdjson-dev libssl-dev libicu-dev libsqlite3-dev libprotozero-dev zlib1g-dev libcsv-dev liburiparser-dev
    libtomlplusplus-dev nlohmann-json3-dev
)

# To open the window: what is loaded when the program runs, which linking alone does not bring.
run_packages=(
    qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-layouts
    qml6-module-qtquick-controls qml6-module-qtquick-templates
    qml6-module-qtquick-dialogs qml6-module-qt-labs-folderlistmodel
    qt6-qpa-plugins qt6-wayland qt6-translations-l10n
    libgl1 libegl1 libopengl0 libgl1-mesa-dri
    ca-certificates
    fonts-inter fonts-dejavu-core
)

# To open the window on a virtual display and to save a picture of it.
picture_packages=(xvfb dbus-daemon netpbm)

# To test without a screen: test libraries, benchmarks, linters, drivers and the accessibility bus.
test_packages=(
    libgtest-dev libgmock-dev libbenchmark-dev qml6-module-qttest
    clang libclang-rt-dev clang-format clang-tidy desktop-file-utils appstream appstream-util lintian
    poppler-utils xauth x11-utils x11-apps xdotool at-spi2-core python3-gi gir1.2-atspi-2.0
)

# Installs those of the packages given that are missing, and touches no other package. Where it cannot
# tell whether a package is there, it says so and goes on: the build finds what it needs, or stops.
install_missing() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is not a Debian system: these packages could not be checked. docs/installing.md has" \
            "their names on other systems. By their Debian names: $*" >&2
        return 0
    fi
    local package missing=()
    for package in "$@"; do
        if ! dpkg-query -W -f '${Status}\n' "$package" 2>/dev/null | grep -qx 'install ok installed'; then
            missing+=("$package")
        fi
    done
    if [[ ${#missing[@]} -eq 0 ]]; then
        return 0
    fi
    local as_root=(env DEBIAN_FRONTEND=noninteractive)
    if [[ $EUID -ne 0 ]]; then
        if ! command -v sudo >/dev/null; then
            echo "Missing: ${missing[*]}. Neither root nor sudo: install these packages, then run this again." >&2
            return 1
        fi
        as_root=(sudo "${as_root[@]}")
    fi
    "${as_root[@]}" apt-get update
    # A relative of Debian may lack a package, or have it by another name.
    local known=() unknown=()
    for package in "${missing[@]}"; do
        if apt-cache show --no-all-versions "$package" >/dev/null 2>&1; then
            known+=("$package")
        else
            unknown+=("$package")
        fi
    done
    if [[ ${#unknown[@]} -gt 0 ]]; then
        echo "This system has no packages of these names, so they could not be checked: ${unknown[*]}" >&2
    fi
    if [[ ${#known[@]} -gt 0 ]]; then
        echo "Installing what is missing: ${known[*]}" >&2
        "${as_root[@]}" apt-get install -y --no-install-recommends --no-remove "${known[@]}"
    fi
}
