#include "remote/RemoteProblem.h"

#include <algorithm>
#include <array>

namespace tavrik {

namespace {

struct Row {
    RemoteFailure failure;
    std::string_view name;
    std::string_view sentence;
};

constexpr std::array kRows{
    Row{RemoteFailure::switchedOff, "switched off",
        "The network is switched off for Tavrik. You can switch it on in Settings, under Updates."},
    Row{RemoteFailure::address, "address",
        "The address to ask is set to one that is not secure. "
        "Remove it from Tavrik's preferences, or set one that begins with https."},
    Row{RemoteFailure::connection, "connection",
        "Tavrik could not reach its server. Check that this Mac is online, then try again."},
    Row{RemoteFailure::insecure, "insecure",
        "The server could not prove who it is, so Tavrik asked it nothing. "
        "Check the date of this Mac, or try again in another network."},
    Row{RemoteFailure::time, "time", "The server took too long to answer. Try again later."},
    Row{RemoteFailure::refused, "refused",
        "The server answered that it cannot help right now. Try again later."},
    Row{RemoteFailure::tooLarge, "too large",
        "The answer was larger than it could honestly be, so Tavrik did not read it. "
        "Try again in another network."},
    Row{RemoteFailure::notTrusted, "not trusted",
        "The answer did not come from Tavrik's makers, or is an old one, so it was not used. "
        "Try again in another network."},
    Row{RemoteFailure::expired, "expired",
        "The answer is out of date, so it was not used. Check the date of this Mac, or try again later."},
    Row{RemoteFailure::notUnderstood, "not understood",
        "This version of Tavrik does not understand the answer. Look for a newer one on Tavrik's website."},
};

const Row& rowOf(RemoteFailure failure) {
    return *std::ranges::find(kRows, failure, &Row::failure);
}

} // namespace

std::string sentenceOf(RemoteFailure failure) {
    return std::string(rowOf(failure).sentence);
}

std::string_view nameOf(RemoteFailure failure) {
    return rowOf(failure).name;
}

RemoteFailure remoteFailureNamed(std::string_view name) {
    const auto* const row = std::ranges::find(kRows, name, &Row::name);
    return row == kRows.end() ? RemoteFailure::connection : row->failure;
}

} // namespace tavrik
