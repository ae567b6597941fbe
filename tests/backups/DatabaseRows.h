#pragma once

#include "platform/SqliteCopy.h"

#include <gtest/gtest.h>

namespace tavrik::test {

/// Every row of every table as text, with the statements that made tables, triggers and indexes; nothing but a
/// line of the error for what is no sound database.
inline std::vector<std::string> rowsIn(const Bytes& database) {
    auto copy = sqlite::openCopy(database);
    if (!copy)
        return {copy.error().description};
    if (const Status sound = sqlite::checkIntegrity(*copy); !sound)
        return {sound.error().description};
    std::vector<std::string> rows;
    for (const std::string table : {"sqlite_master", "dbinfo", "items", "apps", "groups", "downloading_apps",
                                    "image_cache", "categories", "app_sources"}) {
        // A page that was made anew and a trigger that was made again may stand elsewhere in the file.
        auto select = copy->prepare("SELECT * FROM " + table + " ORDER BY 1, 2");
        const bool isSchema = table == "sqlite_master";
        while (select && select.step() == sqlite::Step::row) {
            std::string row = table;
            for (int column = 0; column < 10; ++column)
                if (const auto value = select.blob(column); value && !(isSchema && column == 3))
                    row += "|" + std::string(textOf(*value));
            rows.push_back(row);
        }
    }
    return rows;
}

} // namespace tavrik::test
