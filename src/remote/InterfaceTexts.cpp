#include "remote/InterfaceTexts.h"

#include "platform/Log.h"
#include "platform/Utf8.h"
#include "remote/StrictJson.h"

#include <QChar>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace tavrik {

namespace {

constexpr std::array kTexts{
    ReplaceableText{.text = InterfaceText::welcomeSummary,
                    .key = "welcome.summary",
                    .builtIn = "Welcome to Tavrik",
                    .longest = 60},
    ReplaceableText{.text = InterfaceText::aboutSummary,
                    .key = "about.summary",
                    .builtIn = "Restyles Launchpad and the Dock, and never touches an app.",
                    .longest = 160},
    ReplaceableText{.text = InterfaceText::newestVersion,
                    .key = "updates.newest",
                    .builtIn = "Tavrik %1 is the newest version.",
                    .longest = 120},
    ReplaceableText{.text = InterfaceText::updateAdvice,
                    .key = "updates.advice",
                    .builtIn = "Tavrik installs nothing by itself: it opens the page in your browser.",
                    .longest = 240},
};

constexpr std::array kLinks{
    ReplaceableLink{.link = InterfaceLink::home, .key = "home", .builtIn = "https://tavrik.example/"},
    ReplaceableLink{.link = InterfaceLink::help, .key = "help", .builtIn = "https://tavrik.example/help"},
    ReplaceableLink{.link = InterfaceLink::releaseNotes,
                    .key = "releaseNotes",
                    .builtIn = "https://tavrik.example/releases"},
    ReplaceableLink{
        .link = InterfaceLink::privacy, .key = "privacy", .builtIn = "https://tavrik.example/privacy"},
};

constexpr std::array<std::string_view, 3> kHosts{"tavrik.example", "www.tavrik.example",
                                                 "downloads.tavrik.example"};

constexpr std::size_t kLongestLink = 500; ///< characters

QString qString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// "%1", "%L2" and so on, sorted.
std::vector<std::string> placeholders(std::string_view text) {
    const auto isDigit = [](char letter) { return letter >= '0' && letter <= '9'; };
    std::vector<std::string> found;
    for (std::size_t at = text.find('%'); at != text.npos; at = text.find('%', at + 1)) {
        std::size_t end = at + 1;
        if (end < text.size() && text[end] == 'L')
            ++end;
        const std::size_t digits = end;
        while (end < text.size() && end < digits + 2 && isDigit(text[end]))
            ++end;
        if (end > digits)
            found.emplace_back(text.substr(at, end - at));
    }
    std::ranges::sort(found);
    return found;
}

/// Letters, signs, marks and blanks, and what joins an emoji out of several.
bool isSeen(char32_t point) {
    constexpr char32_t joiner = 0x200D;
    switch (QChar::category(point)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return point == joiner;
    default:
        return true;
    }
}

/// Puts what may stand there into the place of the built-in ones.
template<typename Key, typename Entry, typename May>
void replace(std::map<Key, std::string>& replaced, const QJsonObject& given, std::span<const Entry> list,
             Key Entry::* key, May may) {
    for (const Entry& entry : list) {
        if (!given.contains(QLatin1String(entry.key.data(), static_cast<qsizetype>(entry.key.size()))))
            continue;
        auto text = json::text(given, entry.key);
        if (text && may(entry, *text))
            replaced.emplace(entry.*key, std::move(*text));
        else
            log("Network: what is to replace the text or link " + std::string(entry.key) +
                " may not stand there");
    }
}

} // namespace

std::span<const ReplaceableText> replaceableTexts() {
    return kTexts;
}

std::span<const ReplaceableLink> replaceableLinks() {
    return kLinks;
}

std::span<const std::string_view> allowedLinkHosts() {
    return kHosts;
}

bool isPlainText(std::string_view text, int longest, LineBreaks lineBreaks) {
    int length = 0;
    while (!text.empty()) {
        const auto point = takeCodePoint(text);
        const bool isBreak = point == U'\n' && lineBreaks == LineBreaks::yes;
        if (!point || ++length > longest || *point == U'<' || (!isBreak && !isSeen(*point)))
            return false;
    }
    return true;
}

bool mayReplace(const ReplaceableText& entry, std::string_view text) {
    return text.find_first_not_of(' ') != text.npos && isPlainText(text, entry.longest, LineBreaks::no) &&
           placeholders(text) == placeholders(entry.builtIn);
}

bool isAllowedLink(std::string_view link) {
    if (link.size() > kLongestLink || !isPlainText(link, kLongestLink, LineBreaks::no))
        return false;
    const QUrl url(qString(link), QUrl::StrictMode);
    return url.isValid() && url.scheme() == QLatin1String("https") && url.authority() == url.host() &&
           std::ranges::find(kHosts, url.host(QUrl::FullyEncoded).toStdString()) != kHosts.end();
}

std::string allowListJson() {
    QJsonObject texts;
    for (const ReplaceableText& entry : kTexts)
        texts.insert(qString(entry.key), QJsonObject{{QStringLiteral("builtIn"), qString(entry.builtIn)},
                                                     {QStringLiteral("longest"), entry.longest}});
    QJsonObject links;
    for (const ReplaceableLink& entry : kLinks)
        links.insert(qString(entry.key), qString(entry.builtIn));
    QJsonArray hosts;
    for (const std::string_view host : kHosts)
        hosts.append(qString(host));
    const QJsonObject list{
        {QStringLiteral("texts"), texts}, {QStringLiteral("links"), links}, {QStringLiteral("hosts"), hosts}};
    return QJsonDocument(list).toJson().toStdString();
}

InterfaceTexts::InterfaceTexts(const QJsonObject& payload) {
    const auto given = [&payload](const char* name) { return payload.value(QLatin1String(name)).toObject(); };
    replace(m_texts, given("texts"), replaceableTexts(), &ReplaceableText::text, mayReplace);
    replace(m_links, given("links"), replaceableLinks(), &ReplaceableLink::link,
            [](const ReplaceableLink&, std::string_view link) { return isAllowedLink(link); });
}

std::string InterfaceTexts::text(InterfaceText text) const {
    const auto replaced = m_texts.find(text);
    return replaced != m_texts.end()
               ? replaced->second
               : std::string(std::ranges::find(kTexts, text, &ReplaceableText::text)->builtIn);
}

std::string InterfaceTexts::link(InterfaceLink link) const {
    const auto replaced = m_links.find(link);
    return replaced != m_links.end()
               ? replaced->second
               : std::string(std::ranges::find(kLinks, link, &ReplaceableLink::link)->builtIn);
}

} // namespace tavrik
