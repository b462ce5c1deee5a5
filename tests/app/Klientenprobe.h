#pragma once

#include "Probefenster.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLabel>
#include <QTest>
#include <QTimer>

/// Until all that was to follow at once has happened: such timers go off one after the other.
inline void ruhe()
{
    QTimer gleich;
    gleich.setSingleShot(true);
    gleich.start(0);
    QVERIFY(QTest::qWaitFor([&gleich] { return !gleich.isActive(); }));
    QCoreApplication::processEvents();
}

/// The clients' window of a program, and the hands of its user.
class Klientenprobe
{
public:
    explicit Klientenprobe(Probeheim &heim) : m_programm(heim) {}

    Probefenster &programm() { return m_programm; }
    Klientenanschluss &anschluss() { return m_programm.oberflaeche().klienten; }
    Kartei &kartei() { return anschluss().kartei; }
    Tischklient &tisch() { return anschluss().tisch; }
    Klientenfenster &fenster() { return anschluss().fenster(); }

    /// Opens the window with its key.
    void oeffne()
    {
        m_programm->Hauptfenster->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_programm->Hauptfenster));
        QTest::keyClick(m_programm->Hauptfenster, Qt::Key_K, Qt::ControlModifier);
        QVERIFY(anschluss().offenes() != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(&fenster()));
    }

    /// Types into a field in place of what stood there, and goes on with Tab.
    static void tippe(QLineEdit *feld, const QString &text)
    {
        feld->setFocus();
        feld->selectAll();
        QTest::keyClick(feld, Qt::Key_Delete);
        for (const QChar zeichen : text) { // keys of any keyboard
            QKeyEvent taste(QEvent::KeyPress, 0, Qt::NoModifier, zeichen);
            QApplication::sendEvent(feld, &taste);
        }
        QTest::keyClick(feld, Qt::Key_Tab);
    }

    /// Chooses an entry of a list, as a click on it does.
    static void waehle(QComboBox *feld, const QString &text)
    {
        const int stelle = feld->findText(text);
        QVERIFY2(stelle >= 0, qUtf8Printable(text));
        feld->setCurrentIndex(stelle);
        Q_EMIT feld->activated(stelle);
    }

    /// Enters a new client of this name, and leaves them on display.
    void legeAn(const QString &name)
    {
        QTest::mouseClick(fenster().neuknopf, Qt::LeftButton);
        tippe(fenster().personenblatt->name, name);
    }

    /// The names that the list shows.
    QStringList liste()
    {
        const QAbstractItemModel &modell = *fenster().liste->model();
        QStringList namen;
        for (int zeile = 0; zeile < modell.rowCount(); ++zeile) {
            namen << modell.index(zeile, 0).data().toString();
        }
        return namen;
    }

    /// Clicks a row of the list.
    void klicke(int zeile)
    {
        QTableView &tabelle = *fenster().liste;
        QTest::mouseClick(tabelle.viewport(), Qt::LeftButton, {},
                          tabelle.visualRect(tabelle.model()->index(zeile, 0)).center());
    }

    /// What is kept of the client who is the n-th in the list.
    Klientenakte akte(int zeile = 0)
    {
        const QList<Personenzeile> alle = kartei().liste().suche({}, true);
        return kartei().akte(alle.value(zeile).kennung).value_or(Klientenakte());
    }

    /// The notices of the clients' window, the newest first.
    QStringList hinweise() { return saetze(*fenster().hinweise); }
    /// Those of the main window.
    QStringList hauptsaetze() { return saetze(*m_programm->hinweise); }

private:
    template <typename Leiste>
    static QStringList saetze(const Leiste &leiste)
    {
        QStringList texte;
        for (const Hinweis &hinweis : leiste.hinweise()) {
            texte << hinweis.text;
        }
        return texte;
    }

    Probefenster m_programm;
};
