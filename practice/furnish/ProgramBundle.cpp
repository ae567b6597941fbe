#include "practice/furnish/ProgramBundle.h"

#include "platform/practice/Layout.h"
#include "practice/furnish/BundleBuilder.h"

namespace tavrik::practice {

namespace {

constexpr Date kProgramModified{752'000'400}; // 2024-10-30
constexpr const char* kProgramVersion = "0.1.0";

} // namespace

void writeProgramBundle(TreeWriter& tree, const Bytes& icon) {
    const MacPath contents = kProgramBundle / "Contents";
    writeBundleInfo(
        tree, kProgramBundle,
        {kProgramName, kBundleIdentifier, kProgramName, kProgramVersion, kProgramCategory, "AppIcon", ""});
    tree.file(contents / "MacOS" / kProgramName, bytesOf(placeholderProgram(kProgramName)), 0755);
    tree.file(contents / "Resources/AppIcon.icns", icon);
    tree.file(contents / "Resources/Warning.rtf", bytesOf(kWarningText));
    tree.date(kProgramBundle, kProgramModified);
}

Date programModifiedDate() {
    return kProgramModified;
}

} // namespace tavrik::practice
