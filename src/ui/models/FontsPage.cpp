#include "ui/models/FontsPage.h"

#include "app/Managers.h"
#include "ui/models/Background.h"
#include "ui/models/LackingLetters.h"
#include "ui/models/Text.h"

#include <algorithm>
#include <cstddef>

namespace tavrik {

namespace {

constexpr std::size_t kSampleNames = 4;
constexpr qsizetype kExamples = 3;

QString examples(const std::vector<std::string>& names) {
    const QStringList all = toQStrings(names);
    const QString first = all.mid(0, kExamples).join(QStringLiteral(", "));
    return all.size() > kExamples ? FontsPage::tr("%1 …").arg(first) : first;
}

} // namespace

FontsPage::FontsPage(const UiServices& with) : m_with(with) {
    noteLacks({});
    m_observations.push_back(
        with.managers.notificationCenter.observe(std::string(kPendingChangesUpdated), [this] { show(); }));
    for (const std::string_view name : {kReloadApplicationsAfterApply, kReloadApplicationsAfterBackupRestore}) {
        m_observations.push_back(
            with.managers.notificationCenter.observe(std::string(name), [this] { refresh(); }));
    }
    show();
}

void FontsPage::setSample(const QString& sample) {
    if (sample == m_sample)
        return;
    m_sample = sample;
    show();
    Q_EMIT sampleChanged();
}

QString FontsPage::state() const {
    const PendingChangesManager& changes = m_with.managers.pendingChanges;
    if (changes.staged().pendingReset)
        return tr("Your names return to plain letters when you apply.");
    if (changes.staged().pendingFont)
        return tr("Your names change to %1 when you apply.").arg(toQString(*changes.staged().pendingFont));
    if (changes.activeFont())
        return tr("Your names are in %1.").arg(toQString(*changes.activeFont()));
    return tr("Your names are in plain letters.");
}

QString FontsPage::lackOfAll() const {
    if (m_lackingInAll.empty())
        return {};
    return tr("%n name(s) with characters no style has: %1", nullptr, static_cast<int>(m_lackingInAll.size()))
        .arg(examples(m_lackingInAll));
}

bool FontsPage::hasLacks() const {
    return !std::ranges::all_of(m_lacking, [](const auto& names) { return names.empty(); });
}

bool FontsPage::isStaged() const {
    return m_with.managers.pendingChanges.staged().pendingFont || isResetStaged();
}

bool FontsPage::isResetStaged() const {
    return m_with.managers.pendingChanges.staged().pendingReset;
}

bool FontsPage::canReset() const {
    return m_with.managers.pendingChanges.hasActiveFonts() || isResetStaged();
}

void FontsPage::refresh() {
    m_with.background.run(
        this, [&managers = m_with.managers] { return readUserNames(managers); },
        [this](UserNames names) {
            if (names == m_names)
                return show();
            m_names = std::move(names);
            std::vector<std::string> all = m_names.apps;
            all.insert(all.end(), m_names.folders.begin(), m_names.folders.end());
            noteLacks(all);
            show();
        });
}

void FontsPage::choose(const QString& style) {
    PendingChangesManager& changes = m_with.managers.pendingChanges;
    const std::string name = style.toStdString();
    if (changes.staged().pendingFont == name || changes.activeFont() == name)
        takeBack();
    else
        changes.setPendingFont(name);
}

void FontsPage::reset() {
    if (canReset())
        m_with.managers.pendingChanges.setPendingReset(!isResetStaged());
}

void FontsPage::takeBack() {
    PendingChangesManager& changes = m_with.managers.pendingChanges;
    if (changes.staged().pendingFont)
        changes.setPendingFont(std::nullopt);
    if (changes.staged().pendingReset)
        changes.setPendingReset(false);
}

void FontsPage::show() {
    const PendingChangesManager& changes = m_with.managers.pendingChanges;
    std::vector<FontStylesModel::Style> styles;
    const auto& maps = m_with.managers.fonts.fontReplacer().allFontMaps();
    for (std::size_t i = 0; i < maps.size(); ++i) {
        styles.push_back({.name = toQString(maps[i].name),
                          .sample = sampleIn(maps[i].name),
                          .lack = lackOf(m_lacking[i]),
                          .lacks = toQStrings(m_lacking[i]),
                          .isCurrent = changes.activeFont() == maps[i].name,
                          .isStaged = changes.staged().pendingFont == maps[i].name});
    }
    m_styles.show(styles);
    Q_EMIT changed();
}

QString FontsPage::sampleIn(const std::string& style) const {
    const FontReplacer& fonts = m_with.managers.fonts.fontReplacer();
    if (!m_sample.trimmed().isEmpty())
        return toQString(fonts.convert(fonts.convertToNormal(m_sample.toStdString()), style));
    QStringList names;
    for (const std::string& name : sampleNames(m_names, kSampleNames))
        names.append(toQString(fonts.convert(name, style)));
    return names.join(QStringLiteral("   "));
}

void FontsPage::noteLacks(const std::vector<std::string>& names) {
    const auto& styles = m_with.managers.fonts.fontReplacer().allFontMaps();
    m_lackingInAll.clear();
    m_lacking.assign(styles.size(), {});
    for (const std::string& name : names) {
        std::vector<std::size_t> lacking;
        for (std::size_t i = 0; i < styles.size(); ++i) {
            if (isLackingLetters(name, styles[i]))
                lacking.push_back(i);
        }
        if (lacking.size() == styles.size()) {
            m_lackingInAll.push_back(name);
            continue;
        }
        for (const std::size_t i : lacking)
            m_lacking[i].push_back(name);
    }
}

QString FontsPage::lackOf(const std::vector<std::string>& names) {
    return names.empty()
               ? QString()
               : tr("%n name(s) with characters this style lacks: %1", nullptr, static_cast<int>(names.size()))
                     .arg(examples(names));
}

} // namespace tavrik
