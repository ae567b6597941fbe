#include "cli/Companion.h"

#include "app/PracticeHost.h"

#include <cstdio>

namespace tavrik {

namespace {

void printLine(std::FILE* stream, std::string_view line) {
    std::fwrite(line.data(), 1, line.size(), stream);
    std::fputc('\n', stream);
    std::fflush(stream);
}

} // namespace

Companion::Companion(HostPath practiceRoot) : m_practiceRoot(std::move(practiceRoot)) {}

bool Companion::open() {
    auto host = openPracticeMac(m_practiceRoot);
    if (!host) {
        fail(host.error().description);
        return false;
    }
    m_host = std::move(*host);
    m_managers.emplace(m_host->mac());
    return true;
}

void Companion::say(std::string_view line) const {
    printLine(stdout, line);
}

ExitCode Companion::fail(std::string_view sentence) const {
    printLine(stderr, sentence);
    return ExitCode::failed;
}

ExitCode Companion::refuse(std::string_view sentence) const {
    printLine(stderr, sentence);
    return ExitCode::refused;
}

} // namespace tavrik
