#include "Textwechsel.h"

#include "Farblegende.h"
#include "Sperrgrund.h"
#include "Tabellenansicht.h"
#include "Textfeld.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QTabWidget>
#include <QWidget>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace {

/// What a widget or an entry of a menu says under one of these names is seen or read out.
constexpr const char *beschriftungen[] = {
    "windowTitle",           "title",           "text",    "toolTip", "statusTip", "accessibleName",
    "accessibleDescription", "placeholderText", "hinweis", "unit",    "plainText",
};

/// Entries of the translations: German and English.
QList<QPair<QString, QString>> texte()
{
    QFile datei(QStringLiteral(":/uebersetzungen/mahlberg_en.ts"));
    QList<QPair<QString, QString>> ergebnis;
    if (!datei.open(QIODevice::ReadOnly)) {
        return ergebnis;
    }
    QXmlStreamReader xml(&datei);
    QString deutsch;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("source")) {
            deutsch = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == QLatin1String("translation")) {
            ergebnis.append({deutsch, xml.readElementText()});
        }
    }
    return ergebnis;
}

bool hatLuecken(const QString &text)
{
    return text.contains(QLatin1String("%1"));
}

/// Matches the text with anything in its places. A text that ends in a blank is the beginning of a
/// longer one.
QRegularExpression muster(const QString &text)
{
    static const QRegularExpression luecke(QStringLiteral("%(\\d)"));
    QString ausdruck = QRegularExpression::escape(text);
    ausdruck.replace(QStringLiteral("\\%"), QStringLiteral("%"));
    ausdruck.replace(luecke, QStringLiteral("(?<p\\1>.*)"));
    if (text.endsWith(u' ')) {
        ausdruck += QStringLiteral("(?<p9>.*)");
    }
    return QRegularExpression(QRegularExpression::anchoredPattern(ausdruck));
}

/// What the user types is not the program's text.
bool istEingabe(const QWidget &teil)
{
    return teil.inherits("QLineEdit") || teil.inherits("QTextEdit") ||
           teil.inherits("QAbstractSpinBox") || teil.inherits("Zaehlfeld");
}

/// A sheet and a menu belong to a window, and are windows of their own.
bool liegtIn(const QObject &ding, const QWidget &fenster)
{
    const QObject *traeger = ding.parent();
    while (traeger != nullptr && !traeger->isWidgetType()) {
        traeger = traeger->parent();
    }
    return traeger != nullptr && static_cast<const QWidget *>(traeger)->window() == &fenster;
}

} // namespace

/// Two German texts that are one in English: the longer one stands in windows, the shorter one only
/// where there is little room.
Textwechsel::Textwechsel(bool nachEnglisch)
{
    QList<QPair<QString, QString>> alle = texte();
    std::stable_sort(alle.begin(), alle.end(), [](const auto &eins, const auto &zwei) {
        return eins.first.size() < zwei.first.size();
    });
    for (const auto &[deutsch, englisch] : std::as_const(alle)) {
        const QString &bisher = nachEnglisch ? deutsch : englisch;
        const QString &neu = nachEnglisch ? englisch : deutsch;
        if (hatLuecken(bisher)) {
            m_muster.prepend({muster(bisher), neu}); // the longest is the most particular
        } else if (bisher.endsWith(u' ')) {
            m_muster.prepend({muster(bisher), neu + QStringLiteral("%9")});
        }
        // The kinds of files in a file dialog stand in its list one by one.
        const QStringList neue = neu.split(QStringLiteral(";;"));
        const QStringList bisherige = bisher.split(QStringLiteral(";;"));
        for (qsizetype i = 0; i < qMin(neue.size(), bisherige.size()); ++i) {
            m_texte.insert(bisherige[i], neue[i]);
        }
    }
}

/// Some texts are put together from lines of their own.
QString Textwechsel::text(const QString &bisher) const
{
    QString ganz = zeile(bisher);
    if (ganz != bisher || !bisher.contains(u'\n')) {
        return ganz;
    }
    QStringList zeilen = bisher.split(u'\n');
    for (QString &eine : zeilen) {
        eine = zeile(eine);
    }
    return zeilen.join(u'\n');
}

QString Textwechsel::zeile(const QString &bisher) const
{
    const auto gefunden = m_texte.constFind(bisher);
    if (gefunden != m_texte.constEnd()) {
        return *gefunden;
    }
    for (const auto &[ausdruck, neu] : m_muster) {
        const auto treffer = ausdruck.match(bisher);
        if (treffer.hasMatch()) {
            QString ergebnis = neu;
            for (const QString &name : ausdruck.namedCaptureGroups()) {
                if (!name.isEmpty()) {
                    ergebnis.replace(u'%' + name.mid(1), zeile(treffer.captured(name)));
                }
            }
            return ergebnis;
        }
    }
    return bisher;
}

void Textwechsel::beschrifte(QWidget &fenster) const
{
    beschrifteTeil(fenster);
    for (QWidget *teil : fenster.findChildren<QWidget *>()) {
        if (teil->window() == &fenster) {
            beschrifteTeil(*teil);
        }
    }
    for (QAction *aktion : fenster.findChildren<QAction *>()) {
        if (liegtIn(*aktion, fenster)) {
            beschrifteAktion(*aktion);
        }
    }
    const auto neu = [this](const QString &bisher) {
        return text(bisher);
    };
    for (auto *modell : fenster.findChildren<Tabellenmodell *>()) {
        if (liegtIn(*modell, fenster)) {
            modell->beschrifteNeu(neu);
        }
    }
    for (auto *grund : fenster.findChildren<Sperrgrund *>()) {
        if (liegtIn(*grund, fenster)) {
            grund->beschrifteNeu(neu);
        }
    }
}

void Textwechsel::beschrifteTeil(QWidget &teil) const
{
    for (const char *name : beschriftungen) {
        const QVariant bisher = teil.property(name);
        if (bisher.typeId() != QMetaType::QString || bisher.toString().isEmpty() ||
            (qstrcmp(name, "text") == 0 && istEingabe(teil)) ||
            (qstrcmp(name, "plainText") == 0 && !teil.property("readOnly").toBool())) {
            continue;
        }
        const QString neu = text(bisher.toString());
        if (neu != bisher.toString()) { // a text set anew lays the window out anew
            teil.setProperty(name, neu);
        }
    }
    if (auto *feld = qobject_cast<Textfeld *>(&teil);
        feld != nullptr && feld->isReadOnly() && !feld->uebersetzt()) {
        const QString neu = text(feld->stringValue());
        if (neu != feld->stringValue()) {
            feld->setStringValue(neu);
        }
    } else if (auto *reiter = qobject_cast<QTabWidget *>(&teil)) {
        for (int i = 0; i < reiter->count(); ++i) {
            reiter->setTabText(i, text(reiter->tabText(i)));
            reiter->setTabToolTip(i, text(reiter->tabToolTip(i)));
        }
    } else if (auto *auswahl = qobject_cast<QComboBox *>(&teil);
               auswahl != nullptr && !auswahl->isEditable() &&
               !auswahl->inherits("Auswahlfeld")) { // its text is its value
        for (int i = 0; i < auswahl->count(); ++i) {
            auswahl->setItemText(i, text(auswahl->itemText(i)));
        }
    } else if (auto *legende = qobject_cast<Farblegende *>(&teil)) {
        QList<Farblegende::Eintrag> eintraege = legende->eintraege();
        for (Farblegende::Eintrag &eintrag : eintraege) {
            eintrag.text = text(eintrag.text);
        }
        legende->setEintraege(eintraege);
    }
}

void Textwechsel::beschrifteAktion(QAction &aktion) const
{
    for (const char *name : beschriftungen) {
        const QVariant bisher = aktion.property(name);
        const QString neu = text(bisher.toString());
        if (bisher.typeId() == QMetaType::QString && neu != bisher.toString()) {
            aktion.setProperty(name, neu);
        }
    }
}
