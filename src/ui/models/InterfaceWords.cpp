#include "ui/models/InterfaceWords.h"

#include "remote/RemoteServices.h"
#include "ui/models/CoreWords.h"
#include "ui/models/Text.h"
#include "ui/models/WebPage.h"

#include <algorithm>

namespace tavrik {

QString InterfaceWords::text(InterfaceText text) const {
    const auto entry = std::ranges::find(replaceableTexts(), text, &ReplaceableText::text);
    const std::string builtIn(entry->builtIn);
    const QString words = inTheirLanguage(builtIn);
    return words == toQString(builtIn) ? toQString(m_with.remote.texts().text(text)) : words;
}

void InterfaceWords::open(Page page) {
    constexpr std::array kLinks{InterfaceLink::home, InterfaceLink::help, InterfaceLink::releaseNotes,
                                InterfaceLink::privacy};
    openWebPage(m_with.remote.texts().link(kLinks[static_cast<std::size_t>(page)]), m_with.notices);
}

} // namespace tavrik
