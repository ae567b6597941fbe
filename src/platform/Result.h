#pragma once

#include <string>
#include <utility>
#include <variant>

namespace tavrik {

/// Why an operation failed, in words fit for a log line. `code` is an errno value for files and children, 0
/// where the operating system gave none.
struct Error {
    std::string description;
    int code = 0;

    bool operator==(const Error&) const = default;
};

/// A value or the reason why there is none. Ports and helpers answer with it; managers turn it into a log line
/// and an empty answer, so that it does not travel further.
template<typename T>
class [[nodiscard]] Result {
public:
    Result(T value) : m_content(std::in_place_index<0>, std::move(value)) {}

    Result(Error error) : m_content(std::in_place_index<1>, std::move(error)) {}

    explicit operator bool() const { return m_content.index() == 0; }

    /// Only when the result holds a value.
    T& operator*() { return *std::get_if<0>(&m_content); }

    const T& operator*() const { return *std::get_if<0>(&m_content); }

    T* operator->() { return std::get_if<0>(&m_content); }

    const T* operator->() const { return std::get_if<0>(&m_content); }

    /// Only when the result holds an error.
    const Error& error() const { return *std::get_if<1>(&m_content); }

private:
    std::variant<T, Error> m_content;
};

struct Done {
    bool operator==(const Done&) const = default;
};

/// The outcome of an operation that has nothing to hand back: `return Done{};` or `return Error{...};`.
using Status = Result<Done>;

/// Says in one word, where it happens, that a failure is let pass on purpose.
template<typename T>
void ignoreFailure(const Result<T>&) {}

inline void ignoreFailure(bool) {}

} // namespace tavrik
