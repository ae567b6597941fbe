#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace tavrik {

/// A path of one of two worlds. The types differ so that a path of the Mac and a path of the host never mix by
/// mistake. Text is UTF-8 with "/" between components, without a trailing "/" unless it is the root itself.
template<typename World>
class BasicPath {
public:
    BasicPath() = default;

    explicit BasicPath(std::string_view text) : m_text(text) {
        while (m_text.size() > 1 && m_text.back() == '/')
            m_text.pop_back();
    }

    const std::string& string() const { return m_text; }

    bool empty() const { return m_text.empty(); }

    /// The last component: "Atlas.app" of "/Applications/Atlas.app"; empty for the root.
    std::string name() const { return m_text.substr(m_text.rfind('/') + 1); }

    /// The extension of the last component without its dot; empty where there is none. ".hidden" has none.
    std::string extension() const {
        const std::string last = name();
        const auto dot = last.rfind('.');
        return dot == std::string::npos || dot == 0 ? std::string() : last.substr(dot + 1);
    }

    /// The last component without its extension.
    std::string stem() const {
        const std::string last = name();
        const auto dot = last.rfind('.');
        return dot == std::string::npos || dot == 0 ? last : last.substr(0, dot);
    }

    /// The folder that holds the last component; the root's parent is the root.
    BasicPath parent() const {
        const auto slash = m_text.rfind('/');
        if (slash == std::string::npos)
            return BasicPath();
        return BasicPath(m_text.substr(0, slash == 0 ? 1 : slash));
    }

    /// Joins with exactly one "/". The text may hold several components: `home / "Library/Preferences"`.
    BasicPath operator/(std::string_view relative) const {
        while (!relative.empty() && relative.front() == '/')
            relative.remove_prefix(1);
        if (m_text.empty())
            return BasicPath(relative);
        return BasicPath(m_text.back() == '/' ? m_text + std::string(relative)
                                              : m_text + "/" + std::string(relative));
    }

    /// True for the folder itself and for everything below it.
    bool isInside(const BasicPath& folder) const {
        const std::string& prefix = folder.m_text;
        return m_text.starts_with(prefix) &&
               (m_text.size() == prefix.size() || prefix == "/" || m_text[prefix.size()] == '/');
    }

    auto operator<=>(const BasicPath&) const = default;

private:
    std::string m_text;
};

/// A path as the Mac sees it: "/Applications/Atlas.app". All the program speaks of is paths of the Mac.
using MacPath = BasicPath<struct MacWorld>;

/// A path of the machine that the program runs on. Known to the adapters, and at the edges where a person names
/// a file.
using HostPath = BasicPath<struct HostWorld>;

} // namespace tavrik
