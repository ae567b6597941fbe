#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace tavrik::macos {

/// One of the objects that the system's C interfaces hand out and want to have released: "CGImageRef". Empty
/// where they handed out none.
template<typename Ref>
class CFOwned {
public:
    CFOwned() = default;

    explicit CFOwned(Ref object) : m_object(object) {}

    CFOwned(CFOwned&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}

    CFOwned& operator=(CFOwned&& other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }

    ~CFOwned() {
        if (m_object)
            CFRelease(m_object);
    }

    explicit operator bool() const { return m_object != nullptr; }

    Ref get() const { return m_object; }

private:
    Ref m_object = nullptr;
};

} // namespace tavrik::macos
