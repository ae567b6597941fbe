#include "platform/PathComponent.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PracticeFileManager.h"
#include "platform/practice/PropertyListFile.h"
#include "practice/tools/DefaultsText.h"
#include "practice/tools/ToolFunctions.h"
#include "practice/tools/ToolText.h"

#include <QByteArray>

#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tavrik::practice {

namespace {

ToolAnswer defaultsUsage() {
    return usage("Command line interface to a user's defaults.\n"
                 "Syntax:\n\n"
                 "'defaults' followed by one of the following:\n\n"
                 "  read <domain>                        shows defaults for given domain\n"
                 "  read <domain> <key>                  shows defaults for given domain, key\n"
                 "  write <domain> <key> <value>         writes key for domain\n"
                 "  delete <domain>                      deletes domain\n"
                 "  delete <domain> <key>                deletes key in domain\n\n"
                 "<value> is one of:\n"
                 "  <value_rep>\n"
                 "  -string <string_value>\n"
                 "  -int[eger] <integer_value>\n"
                 "  -float  <floating-point_value>\n"
                 "  -bool[ean] (true | false | yes | no)\n");
}

/// "2022-07-04 14:43:51.299 defaults[50713:32971078] " and the message on a line of its own.
ToolAnswer refusal(const ToolSurroundings& surroundings, std::string_view message) {
    std::string moment = isoText(surroundings.now);
    std::ranges::replace(moment, 'T', ' ');
    moment.pop_back();
    const double seconds = surroundings.now.sinceReference;
    const std::string thousandths =
        std::to_string(1000 + static_cast<int>(1000 * (seconds - std::floor(seconds))));
    const std::string process = std::to_string(::getpid());
    return usage(moment + "." + thousandths.substr(1) + " defaults[" + process + ":" + process + "] \n" +
                 std::string(message) + "\n");
}

/// The file of a domain: a name in the preferences folder, or a whole path with or without its extension.
std::optional<MacPath> fileOf(const std::string& domain) {
    if (domain.starts_with("/"))
        return MacPath(domain.ends_with(".plist") ? domain : domain + ".plist");
    const std::string name = domain + ".plist";
    return isSafePathComponent(name) ? std::optional(kPreferencesFolder / name) : std::nullopt;
}

template<typename Number>
std::optional<plist::Value> numberOf(std::string_view text) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return plist::Value(number);
}

std::optional<plist::Value> valueOf(std::string_view type, const std::string& text) {
    if (type == "-string")
        return plist::Value(text);
    if (type == "-int" || type == "-integer")
        return numberOf<std::int64_t>(text);
    if (type == "-float") {
        bool isNumber = false;
        const double number = QByteArray::fromStdString(text).toDouble(&isNumber);
        return isNumber ? std::optional<plist::Value>(number) : std::nullopt;
    }
    if (type != "-bool" && type != "-boolean")
        return std::nullopt;
    for (const char* yes : {"true", "TRUE", "yes", "YES", "1"})
        if (text == yes)
            return plist::Value(true);
    for (const char* no : {"false", "FALSE", "no", "NO", "0"})
        if (text == no)
            return plist::Value(false);
    return std::nullopt;
}

ToolAnswer read(const ToolSurroundings& surroundings, const MacPath& file, const Arguments& arguments) {
    const auto content = readPropertyList(PracticeFileManager(surroundings.root), file);
    const bool isThere = content && *content && (*content)->as<plist::Dictionary>();
    if (arguments.size() == 2) {
        if (!isThere)
            return refusal(surroundings, "Domain " + arguments[1] + " does not exist");
        return {.exitStatus = 0, .output = defaultsText(**content) + "\n", .errors = {}};
    }
    const plist::Value* value = isThere ? (*content)->find(arguments[2]) : nullptr;
    if (!value)
        return refusal(surroundings, "The domain/default pair of (" + arguments[1] + ", " + arguments[2] +
                                         ") does not exist");
    return {.exitStatus = 0, .output = defaultsText(*value) + "\n", .errors = {}};
}

ToolAnswer write(const ToolSurroundings& surroundings, const MacPath& file, const Arguments& arguments) {
    const auto value =
        arguments.size() == 4 ? std::optional<plist::Value>(arguments[3]) : valueOf(arguments[3], arguments[4]);
    if (!value)
        return defaultsUsage();
    PracticeFileManager files(surroundings.root);
    auto content = readPropertyList(files, file);
    if (content && !*content)
        *content = plist::Dictionary();
    auto* entries = content ? (*content)->as<plist::Dictionary>() : nullptr;
    if (entries)
        entries->insert_or_assign(arguments[2], *value);
    if (!entries || !writePropertyList(files, file, **content))
        return refusal(surroundings, "Could not write domain " + arguments[1] + "; exiting");
    return {};
}

ToolAnswer remove(const ToolSurroundings& surroundings, const MacPath& file, const Arguments& arguments) {
    PracticeFileManager files(surroundings.root);
    auto content = readPropertyList(files, file);
    auto* entries = content && *content ? (*content)->as<plist::Dictionary>() : nullptr;
    bool removed = false;
    if (entries && arguments.size() == 2)
        removed = static_cast<bool>(files.remove(file));
    else if (entries && entries->erase(arguments[2]) > 0)
        removed = static_cast<bool>(writePropertyList(files, file, **content));
    if (!removed)
        return refusal(surroundings,
                       "Domain (" + arguments[1] + ") not found.\nDefaults have not been changed.");
    return {};
}

} // namespace

ToolAnswer defaults(const ToolSurroundings& surroundings, const Arguments& arguments) {
    const std::size_t count = arguments.size();
    const auto file = count > 1 ? fileOf(arguments[1]) : std::nullopt;
    if (!file)
        return defaultsUsage();
    if (arguments[0] == "read" && count <= 3)
        return read(surroundings, *file, arguments);
    if (arguments[0] == "write" && (count == 4 || count == 5))
        return write(surroundings, *file, arguments);
    if (arguments[0] == "delete" && count <= 3)
        return remove(surroundings, *file, arguments);
    return defaultsUsage();
}

} // namespace tavrik::practice
