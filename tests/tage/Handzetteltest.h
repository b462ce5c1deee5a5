#pragma once

#include "Handzettel.h"

#include "Druckprobe.h"
#include "Probesprache.h"
#include "Wochenprobe.h"

#include <QApplication>
#include <QTest>

#include <memory>

/// What the tests share that print what the client takes home: it is printed in German for Anna
/// Muster, and read back.
class Handzetteltest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_sprache.reset();
        m_sprache = std::make_unique<Probesprache>(QLocale::German);
        m_angaben = {.klient = QStringLiteral("Anna Muster"),
                     .masse = [](const QString &) { return Wochenprobe::masse(); },
                     .heute = QDate(2026, 11, 20)};
    }
    void cleanup() { QApplication::setPalette(QPalette()); }

protected:
    void drucke(const Aufzeichnung &aufzeichnung, const Handzettelwunsch &wunsch = {},
                const QPageLayout &papier = Druckprobe::papier(QPageSize::A4,
                                                               QPageLayout::Portrait))
    {
        m_probe = std::make_unique<Druckprobe>(papier);
        m_probe->drucke(handzettel(aufzeichnung, wunsch, m_angaben));
        m_worte = m_probe->worte();
    }
    /// The lines of a page without its foot.
    QStringList zeilen(int seite = 1) const
    {
        QStringList alle = m_probe->zeilen(seite);
        alle.removeLast();
        return alle.replaceInStrings(QString(QChar(QChar::Nbsp)), QStringLiteral(" "));
    }
    QString alles() const
    {
        QStringList alle;
        for (int seite = 1; seite <= m_probe->seiten(); ++seite) {
            alle += zeilen(seite);
        }
        return alle.join(u'\n');
    }
    Druckwort wort(const QString &text) const { return finde(m_worte, text); }

    std::unique_ptr<Probesprache> m_sprache;
    std::unique_ptr<Druckprobe> m_probe;
    QList<Druckwort> m_worte; ///< of the last print
    Druckangaben m_angaben;
};
