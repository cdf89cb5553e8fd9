#include "session/Trace.h"

#include <cxxabi.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <memory>

bool TraceEnabled() {
    static bool const enabled = [] {
        char const* value = std::getenv("ZOLCLIENTUI_TRACE");
        return value && *value && std::strcmp(value, "0") != 0;
    }();
    return enabled;
}

void WriteTraceLine(std::string const& text) {
    std::string const line = "zolclientui: " + text + "\n";
    ssize_t const written = ::write(2, line.data(), line.size());
    static_cast<void>(written);
}

std::string CurrentExceptionName() {
    std::type_info const* type = abi::__cxa_current_exception_type();
    if (!type) return "unknown";
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> demangled(
        abi::__cxa_demangle(type->name(), nullptr, nullptr, &status), std::free);
    return status == 0 && demangled ? demangled.get() : type->name();
}

std::string PrintableName(UStringRef<UTF8> text) {
    std::string name;
    for (UTF8::Unit const* p = text.begin; p != text.end && name.size() < 64; ++p)
        name += (*p >= 0x20 && *p < 0x7f) ? static_cast<char>(*p) : '?';
    return name;
}
