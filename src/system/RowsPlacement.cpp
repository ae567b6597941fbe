#include "system/RowsPlacement.h"

namespace tavrik {

namespace {

bool isSame(const RowsPlacement& now, const RowsPlacement& then) {
    const bool samePages =
        now.original.parentID == then.original.parentID && now.wrapper.parentID == then.wrapper.parentID;
    if (then.original.parentID != then.wrapper.parentID)
        return samePages;
    return samePages && now.original.ordering == then.original.ordering &&
           now.wrapper.ordering == then.wrapper.ordering;
}

} // namespace

RowsState stateOf(const RowsPlacement& now, const SwapRecord& record) {
    if (isSame(now, {record.original, record.tavrik}))
        return RowsState::home;
    return isSame(now, {record.tavrik, record.original}) ? RowsState::exchanged : RowsState::elsewhere;
}

} // namespace tavrik
