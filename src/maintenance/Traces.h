#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tavrik {

struct ApplyServices;

/// What of the program's is in Launchpad, the Dock and the wrapper folder, and what the settings know of it.
struct Traces {
    std::set<std::string> restyled;   ///< applications whose place a wrapper holds, by the settings
    std::set<std::string> unfinished; ///< whose change was stopped half-way
    std::set<std::string> displaced;  ///< of these, whose rows stand in each other's place
    std::set<std::string> selectedIcons;
    std::optional<std::string> style; ///< of the names, in effect
    bool isStyleUnfinished = false;   ///< a change of it was stopped half-way

    std::vector<std::string> wrapperRows; ///< titles of rows that lead, or led, to a wrapper
    std::vector<std::string> styledTitles;
    std::vector<std::string> styledFolders;
    std::vector<std::string> wrapperTiles; ///< names of the tiles that lead to a wrapper
    std::vector<std::string> styledLabels;

    bool hasFolder = false;           ///< the wrapper folder, unless it holds nothing but what is others'
    std::vector<std::string> bundles; ///< names of wrappers in it
    std::vector<std::string> foreign; ///< what is in it and not the program's: no traces

    /// A sentence each; none when nothing is left.
    std::vector<std::string> inWords() const;

    bool empty() const { return inWords().empty(); }

    /// Whether names are written in a style, or may be.
    bool hasStyle() const;
};

/// The error says why that cannot be told. Changes nothing. Background thread; blocks on the disk.
Result<Traces> readTraces(const ApplyServices& with);

} // namespace tavrik
