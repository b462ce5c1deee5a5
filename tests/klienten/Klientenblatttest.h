#pragma once

#include "Klientenblatt.h"

#include "Aktenprobe.h"
#include "Druckprobe.h"

#include <QApplication>
#include <QPalette>
#include <QTest>

#include <memory>

/// What the tests share that print everything that is kept of a client: it is printed in German,
/// and read back.
class Klientenblatttest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_sprache.reset();
        m_sprache = std::make_unique<Probesprache>(QLocale::German);
    }
    void cleanup() { QApplication::setPalette(QPalette()); }

protected:
    void drucke(const Klientenakte &akte,
                const QPageLayout &papier = Druckprobe::papier(QPageSize::A4,
                                                               QPageLayout::Portrait))
    {
        m_probe = std::make_unique<Druckprobe>(papier);
        m_probe->drucke(klientenblatt(akte, Aktenprobe::heute));
        m_worte = m_probe->worte();
    }
    QString seite(int nummer) const { return m_probe->zeilen(nummer).join(u'\n'); }
    /// The lines of a page without what stands at the head and foot of each.
    static QStringList ohneRaender(QStringList zeilen, int seite)
    {
        zeilen.removeLast();
        return zeilen.mid(seite == 1 ? 0 : 1);
    }
    QStringList alleZeilen() const
    {
        QStringList alle;
        for (int nummer = 1; nummer <= m_probe->seiten(); ++nummer) {
            alle += ohneRaender(m_probe->zeilen(nummer), nummer);
        }
        return alle;
    }
    Druckwort wort(const QString &text) const { return finde(m_worte, text); }

    std::unique_ptr<Probesprache> m_sprache;
    std::unique_ptr<Druckprobe> m_probe;
    QList<Druckwort> m_worte; ///< of the last print
};
