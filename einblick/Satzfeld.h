#pragma once

#include <QLabel>

/// A label for a sentence, with this object's name: its words are no markup whatever food is named
/// in them, and it breaks its lines where the window is narrow.
inline QLabel *neuesSatzfeld(const char *name)
{
    auto *worte = new QLabel;
    worte->setObjectName(QLatin1String(name));
    worte->setTextFormat(Qt::PlainText);
    worte->setWordWrap(true);
    return worte;
}

/// The same, whose words can be taken with the mouse to the clipboard.
inline QLabel *neuesAbschreibfeld(const char *name)
{
    QLabel *worte = neuesSatzfeld(name);
    worte->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    worte->setFocusPolicy(Qt::NoFocus);
    return worte;
}
