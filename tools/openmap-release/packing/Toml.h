#pragma once
// toml++ without its assertions: it asserts that a name begins as names do, and then reports it as
// an error where one does not. Untrusted text must not end the program there.

#pragma push_macro("NDEBUG")
#undef NDEBUG // with it, compilers may rely on what is asserted
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): the library's own, which it lets others set
#define TOML_ASSERT(expr) static_assert(true)
#include <toml++/toml.h>
#pragma pop_macro("NDEBUG")
