#pragma once

#include "model/SettingsRecords.h"
#include "platform/PropertyList.h"

#include <optional>

/// The settings' records as property lists. A record that lacks a field, or holds one of a wrong type, is none.
namespace tavrik::settings {

plist::Dictionary encode(const TavrikMapping& mapping);
plist::Dictionary encode(const FontState& state);
plist::Dictionary encode(const HiddenFlagApp& app);
plist::Dictionary encode(const DockBookmark& bookmark);
plist::Dictionary encode(const SwapRecord& record);

/// Reads a record of the type that is asked for.
template<typename Record>
std::optional<Record> decode(const plist::Value& value);

} // namespace tavrik::settings
