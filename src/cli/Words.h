#pragma once

#include "changes/StagedChanges.h"

#include <map>
#include <string>
#include <vector>

namespace tavrik {

struct ApplicationInfo;

/// Names of applications by bundle identifier, and of themes by id.
using AppNames = std::map<std::string, std::string>;

AppNames namesOf(const std::vector<ApplicationInfo>& apps);

/// The name, or the identifier where there is none.
const std::string& nameIn(const AppNames& names, const std::string& bundleID);

/// "1 picture", "3 pictures".
std::string counted(std::size_t count, const std::string& noun);

/// What is staged, a sentence for each application, theme and so on. Empty when nothing is.
std::vector<std::string> inWords(const StagedChanges& staged, const AppNames& names);

} // namespace tavrik
