#pragma once

#include <QCoreApplication>

namespace tavrik::test {

/// To be made before the Mac, whose threads use Qt too.
struct Application {
    int argc = 1;
    char name[6] = "tests";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
};

} // namespace tavrik::test
