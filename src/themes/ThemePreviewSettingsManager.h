#pragma once

namespace tavrik {

class UserDefaults;

enum class ThemePreviewStyle { scattered, grid };

/// How the theme screen lays out its previews, kept in the user defaults. Any thread.
class ThemePreviewSettingsManager {
public:
    explicit ThemePreviewSettingsManager(UserDefaults& defaults);

    /// `scattered` when nothing, or nothing known, is recorded.
    ThemePreviewStyle previewStyle() const;
    void setPreviewStyle(ThemePreviewStyle style);

    /// False when nothing is recorded.
    bool showsFileNames() const;
    void setShowsFileNames(bool shows);

private:
    UserDefaults& m_defaults;
};

} // namespace tavrik
