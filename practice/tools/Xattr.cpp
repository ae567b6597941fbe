#include "platform/practice/CustomIcon.h"
#include "platform/practice/PracticeFileManager.h"
#include "practice/tools/ToolFunctions.h"
#include "practice/tools/ToolText.h"

#include <cerrno>
#include <charconv>
#include <optional>
#include <string_view>

namespace tavrik::practice {

namespace {

constexpr std::string_view kFinderInfo = "com.apple.FinderInfo";
constexpr std::size_t kFinderInfoSize = 32; // bytes

enum class Action { write, print, remove };

struct Request {
    Action action = Action::write;
    std::string attribute;
    Bytes value; ///< to write
};

/// The Mac's own numbers and words, which differ between systems.
std::string macError(const Error& error) {
    const auto with = [](int number, std::string_view words) {
        return "[Errno " + std::to_string(number) + "] " + std::string(words);
    };
    switch (error.code) {
    case ERANGE:
        return with(34, "Result too large");
    case ENOTSUP:
        return with(45, "Operation not supported");
    default:
        return with(error.code, reasonOf(error));
    }
}

std::optional<Bytes> bytesOfHex(std::string_view text) {
    std::string digits;
    for (const char c : text)
        if (c != ' ' && c != '\n')
            digits += c;
    if (digits.size() % 2 != 0)
        return std::nullopt;
    Bytes bytes;
    for (std::size_t at = 0; at < digits.size(); at += 2) {
        std::uint8_t byte = 0;
        const char* const last = digits.data() + at + 2;
        const auto [end, error] = std::from_chars(digits.data() + at, last, byte, 16);
        if (error != std::errc() || end != last)
            return std::nullopt;
        bytes.push_back(byte);
    }
    return bytes;
}

std::string hexOf(ByteView bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        text += kDigits[bytes[at] >> 4];
        text += kDigits[bytes[at] & 0xF];
        text += at % 16 == 15 || at + 1 == bytes.size() ? '\n' : ' ';
    }
    return text;
}

Status write(FileManager& files, const MacPath& path, const Request& request) {
    if (request.attribute != kFinderInfo)
        return Error{"Operation not supported", ENOTSUP};
    if (request.value.size() != kFinderInfoSize)
        return Error{"Result too large", ERANGE};
    return writeFinderInfo(files, path, request.value);
}

void run(FileManager& files, const std::string& argument, const Request& request, ToolAnswer& answer) {
    const MacPath path(argument);
    const auto fail = [&](const Error& error) {
        answer.errors += "xattr: " + macError(error) + ": '" + argument + "'\n";
        answer.exitStatus = 1;
    };
    if (const auto there = files.attributes(path); !there)
        return fail(there.error());
    if (request.action == Action::write) {
        if (const Status written = write(files, path, request); !written)
            fail(written.error());
        return;
    }

    const auto info = request.attribute == kFinderInfo ? readFinderInfo(files, path) : std::nullopt;
    if (!info)
        return complain(answer, "xattr", argument, "No such xattr: " + request.attribute);
    if (request.action == Action::print)
        answer.output += hexOf(*info);
    else if (const Status removed = writeFinderInfo(files, path, Bytes(kFinderInfoSize)); !removed)
        fail(removed.error());
}

} // namespace

ToolAnswer xattr(const ToolSurroundings& surroundings, const Arguments& arguments) {
    Request request;
    const std::string option = arguments.empty() ? "" : arguments[0];
    if (option == "-p" || option == "-px")
        request.action = Action::print;
    else if (option == "-d")
        request.action = Action::remove;
    const bool writes = option == "-w" || option == "-wx";
    const std::size_t firstPath = writes ? 3 : 2;
    if ((!writes && request.action == Action::write) || arguments.size() <= firstPath)
        return usage(
            "usage: xattr [-slrvx] [-p attr_name | -w attr_name attr_value | -d attr_name | -c] file ...\n");

    request.attribute = arguments[1];
    if (writes) {
        const auto value =
            option == "-wx" ? bytesOfHex(arguments[2]) : Bytes(arguments[2].begin(), arguments[2].end());
        if (!value)
            return usage("xattr: non-hexadecimal value: " + arguments[2] + "\n");
        request.value = *value;
    }
    PracticeFileManager files(surroundings.root);
    ToolAnswer answer;
    for (std::size_t at = firstPath; at < arguments.size(); ++at)
        run(files, arguments[at], request, answer);
    return answer;
}

} // namespace tavrik::practice
