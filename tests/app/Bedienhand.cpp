// The user of a program that runs in a process of its own: a plugin of the kind that Qt loads for
// further keyboards and mice. It tells on the standard output which windows appear, and does what
// it reads from the standard input, a line for each deed.

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QGenericPlugin>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSocketNotifier>
#include <QTest>
#include <QTextStream>

#include <algorithm>

#include <unistd.h>

namespace {

void sage(const QString &zeile)
{
    QTextStream(stdout) << zeile << Qt::endl;
}

/// The buttons that can be seen, from left to right.
QList<QPushButton *> knoepfe(const QMessageBox &kasten)
{
    QList<QPushButton *> alle = kasten.findChildren<QPushButton *>();
    erase_if(alle, [](const QPushButton *knopf) { return !knopf->isVisible(); });
    std::sort(alle.begin(), alle.end(), [](const QPushButton *a, const QPushButton *b) {
        return a->mapToGlobal(QPoint()).x() < b->mapToGlobal(QPoint()).x();
    });
    return alle;
}

void beschreibe(const QWidget &fenster)
{
    if (const auto *kasten = qobject_cast<const QMessageBox *>(&fenster)) {
        QStringList worte = {kasten->text(), kasten->informativeText()};
        for (const QPushButton *knopf : knoepfe(*kasten)) {
            worte << knopf->text();
        }
        sage(QStringLiteral("message: ") + worte.join(QStringLiteral(" | ")));
    } else {
        sage(QStringLiteral("window: ") + fenster.windowTitle());
    }
}

void druecke(const QString &aufschrift)
{
    const auto *kasten = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    for (QPushButton *knopf : kasten != nullptr ? knoepfe(*kasten) : QList<QPushButton *>()) {
        if (knopf->text() == aufschrift) {
            QTest::mouseClick(knopf, Qt::LeftButton);
            return;
        }
    }
}

void waehle(const QString &eintrag)
{
    for (const QWidget *fenster : QApplication::topLevelWidgets()) {
        for (QAction *aktion : fenster->findChildren<QAction *>()) {
            if (aktion->text() == eintrag) {
                aktion->trigger();
                return;
            }
        }
    }
}

void schliesse(const QString &titel)
{
    for (QWidget *fenster : QApplication::topLevelWidgets()) {
        if (fenster->isVisible() && fenster->windowTitle() == titel) {
            fenster->close();
            return;
        }
    }
}

class Hand : public QObject
{
public:
    Hand() : m_auftraege(STDIN_FILENO, QSocketNotifier::Read)
    {
        QCoreApplication::instance()->installEventFilter(this);
        connect(&m_auftraege, &QSocketNotifier::activated, this, [this] { lies(); });
    }

protected:
    bool eventFilter(QObject *ziel, QEvent *event) override
    {
        auto *fenster = qobject_cast<QWidget *>(ziel);
        if (event->type() == QEvent::Show && fenster != nullptr && fenster->isWindow()) {
            QMetaObject::invokeMethod(
                fenster, [fenster] { beschreibe(*fenster); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void lies()
    {
        char stueck[256];
        const ssize_t gelesen = read(STDIN_FILENO, stueck, sizeof stueck);
        if (gelesen <= 0) {
            m_auftraege.setEnabled(false);
            return;
        }
        m_rest.append(stueck, gelesen);
        for (qsizetype ende = m_rest.indexOf('\n'); ende >= 0; ende = m_rest.indexOf('\n')) {
            const QString zeile = QString::fromUtf8(m_rest.first(ende));
            m_rest.remove(0, ende + 1);
            // The deed is done once this is over, since a message that it opens waits for the next.
            QMetaObject::invokeMethod(
                this, [zeile] { tue(zeile); }, Qt::QueuedConnection);
        }
    }

    static void tue(const QString &zeile)
    {
        const QString tat = zeile.section(u' ', 0, 0);
        const QString woran = zeile.section(u' ', 1);
        if (tat == QLatin1String("press")) {
            druecke(woran);
        } else if (tat == QLatin1String("choose")) {
            waehle(woran);
        } else if (tat == QLatin1String("close")) {
            schliesse(woran);
        } else if (tat == QLatin1String("desktop")) {
            sage(QStringLiteral("desktop: ") + QGuiApplication::desktopFileName() + u' ' +
                 QCoreApplication::applicationName());
        } else if (tat == QLatin1String("settle")) {
            QSettings().sync(); // what the program would write in a moment
            sage(QStringLiteral("settled"));
        }
    }

    QSocketNotifier m_auftraege;
    QByteArray m_rest;
};

} // namespace

/// What Qt asks for the hand. Asked for "home", it only tells the home folder, and the program ends
/// before it reads or writes anything there.
class Handplugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Bedienhand.json")

public:
    QObject *create(const QString & /*name*/, const QString &wie) override
    {
        if (wie == QLatin1String("home")) {
            sage(QDir::homePath());
            _exit(0);
        }
        return new Hand;
    }
};

#include "Bedienhand.moc"
