#pragma once

#include <set>
#include <string>

namespace tavrik {

struct Mac;

/// The bundle identifiers of the applications that lie in the standard folders, whatever Launchpad knows of
/// them: while it makes its database anew it knows few. Background thread; reads an information dictionary for
/// each.
std::set<std::string> installedBundles(const Mac& mac);

} // namespace tavrik
