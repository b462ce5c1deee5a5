#pragma once

#include <QHash>
#include <QList>
#include <QPair>
#include <QRegularExpression>
#include <QString>

class QAction;
class QWidget;

/// Puts the texts of open windows into the other language: each text that the program itself has
/// written there, also with a name or a figure in it. What the user has typed is none of them, and
/// stays.
class Textwechsel
{
public:
    /// Reads all texts in both languages; `nachEnglisch`: the windows are German so far.
    explicit Textwechsel(bool nachEnglisch);

    /// The text in the other language; a text that is none of the program's comes back as it is.
    QString text(const QString &bisher) const;

    /// Changes the texts of a window and of all that lies in it. Its sheets and menus are windows
    /// of their own.
    void beschrifte(QWidget &fenster) const;

private:
    QString zeile(const QString &bisher) const;
    void beschrifteTeil(QWidget &teil) const;
    void beschrifteAktion(QAction &aktion) const;

    QHash<QString, QString> m_texte;
    QList<QPair<QRegularExpression, QString>> m_muster; ///< texts with places for names or figures
};
