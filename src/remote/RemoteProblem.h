#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace tavrik {

/// Why nothing came of a request, as far as a person could do something about it.
enum class RemoteFailure {
    switchedOff,   ///< the network is switched off for good
    address,       ///< the address in the user defaults is neither https nor one of this machine
    connection,    ///< no network, no such host, refused, or cut off in the middle
    insecure,      ///< the server could not prove who it is
    time,          ///< no whole answer within the time limit
    refused,       ///< the server answered, but with an error or with a redirect
    tooLarge,      ///< the answer is larger than any honest one
    notTrusted,    ///< not signed by a key of ours, or an older answer than one that was seen before
    expired,       ///< signed long ago, and no longer meant to be used
    notUnderstood, ///< signed by us, but not what this version can read
};

struct RemoteProblem {
    RemoteFailure failure = RemoteFailure::connection;
    std::string detail; ///< for the log

    bool operator==(const RemoteProblem&) const = default;
};

/// What a person is told: why, and what to do about it. English; plain text.
std::string sentenceOf(RemoteFailure failure);

/// The name that is kept in the user defaults, and back; `connection` for an unknown one.
std::string_view nameOf(RemoteFailure failure);
RemoteFailure remoteFailureNamed(std::string_view name);

/// A value or the problem why there is none.
template<typename T>
class [[nodiscard]] RemoteResult {
public:
    RemoteResult(T value) : m_content(std::in_place_index<0>, std::move(value)) {}

    RemoteResult(RemoteProblem problem) : m_content(std::in_place_index<1>, std::move(problem)) {}

    explicit operator bool() const { return m_content.index() == 0; }

    /// Only when there is a value.
    T& operator*() { return *std::get_if<0>(&m_content); }

    const T& operator*() const { return *std::get_if<0>(&m_content); }

    T* operator->() { return std::get_if<0>(&m_content); }

    const T* operator->() const { return std::get_if<0>(&m_content); }

    /// Only when there is a problem.
    const RemoteProblem& problem() const { return *std::get_if<1>(&m_content); }

private:
    std::variant<T, RemoteProblem> m_content;
};

} // namespace tavrik
