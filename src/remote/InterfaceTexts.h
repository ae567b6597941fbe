#pragma once

#include <QJsonObject>

#include <map>
#include <span>
#include <string>
#include <string_view>

namespace tavrik {

/// The texts and links of the interface that a service may replace, and no others: nothing that guards data, no
/// log line, no file name. A new entry is a new enumerator and a new row of the table.
enum class InterfaceText {
    welcomeSummary,
    aboutSummary,
    newestVersion,
    updateAdvice,
};

enum class InterfaceLink {
    home,
    help,
    releaseNotes,
    privacy,
};

struct ReplaceableText {
    InterfaceText text;
    std::string_view key; ///< in the signed answer, below "texts"
    std::string_view builtIn;
    int longest; ///< characters
};

struct ReplaceableLink {
    InterfaceLink link;
    std::string_view key; ///< in the signed answer, below "links"
    std::string_view builtIn;
};

std::span<const ReplaceableText> replaceableTexts();
std::span<const ReplaceableLink> replaceableLinks();

/// The hosts that links may lead to, those of the releases included.
std::span<const std::string_view> allowedLinkHosts();

/// Whether a text may stand in the place of the built-in one: as long as it may be, the same placeholders (%1,
/// %2, ...) equally often, plain text without markup and without characters that cannot be seen.
bool mayReplace(const ReplaceableText& entry, std::string_view text);

/// Whether a link may be opened: https, to an allowed host, at most 500 characters, no user, no port.
bool isAllowedLink(std::string_view link);

/// Plain text of at most so many characters: valid UTF-8, no "<", nothing that cannot be seen or turns the
/// direction of reading; line breaks where they are wanted.
enum class LineBreaks { no, yes };
bool isPlainText(std::string_view text, int longest, LineBreaks lineBreaks);

/// The allow-list as JSON, for tools that publish: {"texts": {key: {"builtIn", "longest"}}, "links": {key:
/// builtIn}, "hosts": [...]}.
std::string allowListJson();

/// The texts and links as they are now: the built-in ones, some replaced. A value; any thread.
class InterfaceTexts {
public:
    /// All built in.
    InterfaceTexts() = default;

    /// Out of a payload that was verified. What is not on the list is passed over; what may not stand there
    /// leaves the built-in one, with a log line.
    explicit InterfaceTexts(const QJsonObject& payload);

    std::string text(InterfaceText text) const;
    std::string link(InterfaceLink link) const;

    bool operator==(const InterfaceTexts&) const = default;

private:
    std::map<InterfaceText, std::string> m_texts;
    std::map<InterfaceLink, std::string> m_links;
};

} // namespace tavrik
