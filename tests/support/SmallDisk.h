#pragma once

#include <sys/resource.h>

#include <csignal>

namespace tavrik::test {

/// As long as it lives, a file of this process cannot grow beyond `bytes`: a write stops short there, and the
/// next one fails with EFBIG.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{.rlim_cur = bytes, .rlim_max = m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~SmallDisk() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = SIG_DFL;
};

} // namespace tavrik::test
