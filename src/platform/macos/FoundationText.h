#pragma once

#include "platform/Path.h"
#include "platform/Result.h"

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

/// Between the program's texts and Foundation's. Names of files keep their normal form on the way. For
/// Objective-C++ alone.
namespace tavrik::macos {

/// Nil when the text is not UTF-8. Foundation raises an exception where it is given nil for a path: look first.
NSString* toNSString(std::string_view text);

/// Empty for nil.
std::string toString(NSString* text);

/// Nil for an empty path and for one that is not UTF-8. Looks at the disk to learn whether it is a folder's.
NSURL* toNSURL(const MacPath& path);

/// With errno's value where the system tells one, and naming the path.
Error toError(const MacPath& path, NSError* error);

} // namespace tavrik::macos
