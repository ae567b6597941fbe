#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/PropertyList.h"

#include <string>
#include <string_view>
#include <vector>

/// The application tiles within the Dock's preferences, read into memory. Real files hold spacers, tiles that
/// scripts added, and dictionaries where numbers belong: nothing is used before its type was looked at. Pure;
/// any thread.
namespace tavrik::dock {

/// The "tile-data" of one application tile, inside the preferences that it was found in; it must not outlive
/// them. What is not set here stays as it was read.
class Tile {
public:
    /// No tile.
    Tile() = default;

    explicit Tile(plist::Dictionary& data) : m_data(&data) {}

    explicit operator bool() const { return m_data != nullptr; }

    /// Null when it is missing or not of its type.
    const std::string* bundleID() const;
    const Bytes* bookmark() const;
    const plist::Value* modified() const; ///< of any type
    const std::string* label() const;
    const std::string* url() const;

    void setBookmark(const Bytes& bookmark);
    /// Makes the tile's "file-data" when it has none.
    void setURL(std::string_view url);
    void setModified(Date date);
    /// As `modified` gave it; null takes the date away.
    void setModified(const plist::Value* recorded);
    void setLabel(std::string_view label);

private:
    plist::Dictionary* m_data = nullptr;
};

/// A date as the program writes it into tiles: whole seconds since 2001, rounded down.
plist::Value recordedDate(Date date);

/// Where a tile's URL leads: a file URL, or the plain path that scripts put in its place.
MacPath pathOf(std::string_view url);

/// The tiles of "persistent-apps" that have a description, spacers among them, in Dock order.
std::vector<Tile> allTiles(plist::Value& preferences);

/// The same of "recent-apps", and of "persistent-others": the folders and documents.
std::vector<Tile> recentTiles(plist::Value& preferences);
std::vector<Tile> otherTiles(plist::Value& preferences);

/// The tiles of "persistent-apps" that carry a bundle identifier, in Dock order.
std::vector<Tile> appTiles(plist::Value& preferences);

/// The tiles of "persistent-apps" that carry an identifier, or a URL and a label, in Dock order: all that
/// anything here ever changes.
std::vector<Tile> applicationTiles(plist::Value& preferences);

/// The tiles of "persistent-apps" that carry a URL and a label, with or without an identifier, in Dock order.
std::vector<Tile> labelledTiles(plist::Value& preferences);

/// The first application tile with this identifier, else none.
Tile findTile(plist::Value& preferences, std::string_view bundleID);

/// Adds one to "mod-count" when that is an integer.
void raiseModCount(plist::Value& preferences);

} // namespace tavrik::dock
