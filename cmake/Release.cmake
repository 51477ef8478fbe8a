# What the installed programs are built with beyond the optimisation: hardened binaries, and the same
# bytes from the same sources wherever and whenever they are built.
option(VASKER_RELEASE "Build what is installed: hardened and reproducible" OFF)

# The day of the release in CHANGELOG.md. In seconds since 1970 it is the time of all files in a package;
# the environment may set another.
set(VASKER_RELEASE_DAY 2026-11-22)
set(VASKER_RELEASE_TIME 1795305600)
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    set(VASKER_RELEASE_TIME $ENV{SOURCE_DATE_EPOCH})
endif()

if(VASKER_RELEASE)
    # Qt's resource compiler writes the times of its input files, its shader compiler tables in the order
    # of their hashes, unless these are set.
    set_property(GLOBAL PROPERTY RULE_LAUNCH_CUSTOM
        "\"${CMAKE_COMMAND}\" -E env SOURCE_DATE_EPOCH=${VASKER_RELEASE_TIME} QT_HASH_SEED=0")
    add_compile_options(
        -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
        -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)

    include(CheckCXXCompilerFlag)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
    add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
    # Some of these exist for some processors only.
    foreach(flag IN ITEMS
            -fstack-protector-strong -fstack-clash-protection -fcf-protection -mbranch-protection=standard)
        string(MAKE_C_IDENTIFIER "VASKER_HAS${flag}" known)
        check_cxx_compiler_flag(${flag} ${known})
        if(${known})
            add_compile_options(${flag})
        endif()
    endforeach()
endif()
