// Makes a practice Mac with so many Launchpad rows, or loads its catalogue once.
//   catalogue_load make FOLDER ROWS [styled]
//   catalogue_load list FOLDER

#include "bench/BenchMac.h"

#include <cstdio>
#include <string_view>

int main(int count, char** arguments) {
    using namespace tavrik;
    const std::string_view action = count > 2 ? arguments[1] : "";
    if (action == "make" && count >= 4) {
        const auto style = count > 4 ? practice::TitleStyle::styled : practice::TitleStyle::plain;
        bench::furnishWithRows(HostPath(arguments[2]), std::atoi(arguments[3]), style);
        return 0;
    }
    if (action == "list") {
        bench::Catalogue catalogue{HostPath(arguments[2])};
        std::printf("%zu\n", catalogue.apps.loadApplications().size());
        return 0;
    }
    return 2;
}
