#pragma once

#include "Fensterprobe.h"

#include <QAction>

/// What the tests share of the window of the days: it speaks German, and each begins with a new
/// one.
class Tagefenstertest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void init() { m_probe = std::make_unique<Fensterprobe>(); }
    void cleanup() { m_probe.reset(); }

protected:
    Tagefenster &fenster() const { return *m_probe->fenster; }
    Tagebuch &buch() const { return fenster().buch; }
    /// The foods of a meal, one behind the other.
    QString mahlzeit(int welche, int tag = 0) const
    {
        return Aufzeichnungsprobe::namen(m_probe->jetzige(), tag, welche);
    }
    /// The entry of the menus with this text; null: there is none.
    QAction *eintrag(const QString &text) const
    {
        for (QAction *einer : fenster().findChildren<QAction *>()) {
            if (einer->text().remove(u'&') == text) {
                return einer;
            }
        }
        return nullptr;
    }

    std::unique_ptr<Fensterprobe> m_probe;
};
