#pragma once

#include "icons/list/ApplicationRow.h"

#include <vector>

namespace tavrik {

/// What shows a coordinator's rows. Main thread.
class ApplicationsTable {
public:
    virtual ~ApplicationsTable() = default;

    /// Shows these rows. Only what differs from what is shown may change, so that the scrolled place and the
    /// selection stay.
    virtual void show(const std::vector<ApplicationRow>& rows) = 0;
};

} // namespace tavrik
