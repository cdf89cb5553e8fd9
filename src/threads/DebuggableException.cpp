#include "threads/DebuggableException.h"

#include <cxxabi.h>

#include <cstdlib>
#include <typeinfo>

DebuggableException::~DebuggableException() = default;

char const* DebuggableException::what() const noexcept {
    if (m_typeName.empty()) {
        char const* mangled = typeid(*this).name();
        try {
            int status = 0;
            char* plain = abi::__cxa_demangle(mangled, nullptr, nullptr, &status);
            m_typeName = (status == 0 && plain) ? plain : mangled;
            std::free(plain);
        } catch (...) {
            return mangled;
        }
    }
    return m_typeName.c_str();
}
