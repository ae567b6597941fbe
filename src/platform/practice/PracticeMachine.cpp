#include "platform/practice/PracticeMachine.h"

#include "platform/FileManager.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PropertyListFile.h"

namespace tavrik::practice {

namespace {

constexpr std::size_t kLargestSerialNumberFile = 4096; ///< bytes

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const auto first = text.find_first_not_of(kBlanks);
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

} // namespace

PracticeMachine::PracticeMachine(const FileManager& files) : m_files(files) {}

std::optional<std::string> PracticeMachine::serialNumber() const {
    const auto content = m_files.read(kSerialNumberFile, kLargestSerialNumberFile);
    if (!content)
        return std::nullopt;
    const std::string number(trimmed(textOf(*content)));
    return number.empty() ? std::nullopt : std::optional(number);
}

SystemVersion PracticeMachine::systemVersion() const {
    const auto content = readPropertyList(m_files, kSystemVersionFile);
    if (!content || !*content)
        return {};
    const auto* version = (*content)->find<std::string>("ProductVersion");
    return version ? systemVersionOf(*version) : SystemVersion();
}

} // namespace tavrik::practice
