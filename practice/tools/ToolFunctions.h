#pragma once

#include "practice/tools/SystemTools.h"

/// The tools, one file each. Arguments are those after the tool's own name.
namespace tavrik::practice {

using Arguments = std::vector<std::string>;

/// `chflags hidden|nohidden PATH...`: keeps the flag in the volume's list of hidden paths.
ToolAnswer chflags(const ToolSurroundings& surroundings, const Arguments& arguments);

/// `defaults read DOMAIN [KEY]`, `defaults write DOMAIN KEY [-bool|-int|-float|-string] VALUE` and
/// `defaults delete DOMAIN [KEY]` on the property lists of the preferences folder. A write replaces the file in
/// one step and keeps every other entry; a damaged file is refused and stays.
ToolAnswer defaults(const ToolSurroundings& surroundings, const Arguments& arguments);

/// `killall [-SIGNAL] NAME...`
ToolAnswer killall(const ToolSurroundings& surroundings, const Arguments& arguments);

/// `ln -s TARGET LINK`
ToolAnswer ln(const ToolSurroundings& surroundings, const Arguments& arguments);

/// `lsregister -f PATH...` and `lsregister -u PATH...`
ToolAnswer lsregister(const ToolSurroundings& surroundings, const Arguments& arguments);

/// `touch PATH...`
ToolAnswer touch(const ToolSurroundings& surroundings, const Arguments& arguments);

/// `xattr -w|-wx NAME VALUE PATH...`, `xattr -p|-px|-d NAME PATH...`. The volume keeps com.apple.FinderInfo
/// alone; any other attribute is refused as on a volume that cannot hold it.
ToolAnswer xattr(const ToolSurroundings& surroundings, const Arguments& arguments);

} // namespace tavrik::practice
