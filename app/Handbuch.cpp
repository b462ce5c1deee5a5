#include "Handbuch.h"

#include "Zeichenkettentabelle.h"

#include <QAction>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

const QString Handbuch::ersteSeite = QStringLiteral("index");

namespace {

constexpr QSize fenstergroesse(960, 680);
constexpr int breiteInhalt = 220;
constexpr int blattrand = 16;
constexpr int zellenrand = 5;

const QString endung = QStringLiteral(".md");

/// Pages are told apart by this address, whichever language they are read in: going back also leads
/// to the page that was read before the language was changed.
QUrl adresse(const QString &seite)
{
    return QUrl(QStringLiteral("handbuch:/") + seite + endung);
}

/// Where the program carries what has this address.
QString datei(const QUrl &adresse)
{
    const bool englisch = QLocale().language() == QLocale::English;
    return (englisch ? QStringLiteral(":/handbuch/en") : QStringLiteral(":/handbuch/de")) +
           adresse.path();
}

QByteArray inhalt(const QUrl &adresse)
{
    QFile gelesen(datei(adresse));
    return gelesen.open(QIODevice::ReadOnly) ? gelesen.readAll() : QByteArray();
}

/// The heading that a page begins with.
QString titel(const QString &seite)
{
    const QString text = QString::fromUtf8(inhalt(adresse(seite)));
    return text.section(u'\n', 0, 0).remove(u'#').trimmed();
}

} // namespace

/// Shows one page, whose pictures are never wider than the window.
class Handbuchblatt : public QTextBrowser
{
public:
    Handbuchblatt()
    {
        setOpenLinks(false);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // else it comes and goes with a picture
        connect(this, &QTextBrowser::sourceChanged, this, &Handbuchblatt::gestalte);
    }

    /// Makes the page anew and stays where it is.
    void erneuere()
    {
        const int stelle = verticalScrollBar()->value();
        reload();
        verticalScrollBar()->setValue(stelle);
    }

protected:
    QVariant loadResource(int type, const QUrl &name) override
    {
        if (type == QTextDocument::ImageResource) {
            return QImage(datei(name));
        }
        return inhalt(name);
    }

    void resizeEvent(QResizeEvent *event) override
    {
        QTextBrowser::resizeEvent(event);
        passeBilderEin();
    }

private:
    void gestalte()
    {
        document()->setDocumentMargin(blattrand);
        for (QTextFrame *rahmen : document()->rootFrame()->childFrames()) {
            if (auto *tabelle = qobject_cast<QTextTable *>(rahmen)) {
                QTextTableFormat form = tabelle->format();
                form.setBorder(1);
                form.setBorderBrush(palette().mid());
                form.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
                form.setBorderCollapse(true);
                form.setCellSpacing(0);
                form.setCellPadding(zellenrand);
                form.setRightMargin(form.border()); // its line lies beyond its width
                tabelle->setFormat(form);
            }
        }
        passeBilderEin();
    }

    /// The text's own way to draw a picture smaller leaves letters in it that nobody can read.
    void passeBilderEin()
    {
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
            for (auto stueck = block.begin(); !stueck.atEnd(); ++stueck) {
                const QTextImageFormat bild = stueck.fragment().charFormat().toImageFormat();
                if (bild.isValid()) {
                    passeEin(document()->baseUrl().resolved(QUrl(bild.name())));
                    document()->markContentsDirty(block.position(), block.length());
                }
            }
        }
    }

    void passeEin(const QUrl &bild)
    {
        const double punkte = devicePixelRatioF();
        const int platz = qRound((viewport()->width() - 2 * blattrand) * punkte);
        QImage gezeigt(datei(bild));
        if (gezeigt.width() > platz && platz > 0) {
            gezeigt = gezeigt.scaledToWidth(platz, Qt::SmoothTransformation);
        }
        gezeigt.setDevicePixelRatio(punkte);
        document()->addResource(QTextDocument::ImageResource, bild, gezeigt);
    }
};

Handbuch::Handbuch()
{
    setObjectName(QStringLiteral("handbuch"));
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(oberteil());
    aufbau->addWidget(mittelteil(), 1);
    beschrifte();
    resize(fenstergroesse);
    befehl({QKeySequence(Qt::Key_Escape), QKeySequence(QStringLiteral("Ctrl+W"))},
           [this] { close(); });
    befehl({QKeySequence(QStringLiteral("Ctrl+F"))}, [this] {
        m_suchfeld->setFocus(Qt::ShortcutFocusReason);
        m_suchfeld->selectAll();
    });
    connect(m_blatt, &QTextBrowser::anchorClicked, this, &Handbuch::folgeVerweis);
    connect(m_blatt, &QTextBrowser::sourceChanged, this, &Handbuch::folgeSeite);
    connect(m_blatt, &QTextBrowser::backwardAvailable, m_zurueck, &QAction::setEnabled);
    connect(m_blatt, &QTextBrowser::forwardAvailable, m_vor, &QAction::setEnabled);
    connect(m_inhalt, &QListWidget::currentRowChanged, this,
            [this](int zeile) { zeige(seiten().value(zeile)); });
    connect(m_suchfeld, &QLineEdit::returnPressed, this, &Handbuch::suche);
    connect(m_suchfeld, &QLineEdit::textEdited, m_vergeblich, &QWidget::hide);
}

QWidget *Handbuch::oberteil()
{
    auto *teil = new QWidget;
    auto *zeile = new QHBoxLayout(teil);
    zeile->setContentsMargins(0, 0, 0, 0);
    m_zurueck = befehl({QKeySequence(QStringLiteral("Alt+Left"))}, [this] { m_blatt->backward(); });
    m_vor = befehl({QKeySequence(QStringLiteral("Alt+Right"))}, [this] { m_blatt->forward(); });
    for (const auto &[aktion, pfeil] :
         {std::pair(m_zurueck, Qt::LeftArrow), std::pair(m_vor, Qt::RightArrow)}) {
        auto *knopf = new QToolButton;
        knopf->setDefaultAction(aktion);
        knopf->setArrowType(pfeil);
        knopf->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        knopf->setFocusPolicy(Qt::TabFocus);
        aktion->setEnabled(false);
        zeile->addWidget(knopf);
    }
    zeile->addStretch();
    m_vergeblich = new QLabel;
    m_vergeblich->setObjectName(QStringLiteral("vergeblich"));
    m_vergeblich->hide();
    m_suchfeld = new QLineEdit;
    m_suchfeld->setObjectName(QStringLiteral("seitensuche"));
    m_suchfeld->setClearButtonEnabled(true);
    m_suchfeld->setMinimumWidth(breiteInhalt);
    zeile->addWidget(m_vergeblich);
    zeile->addWidget(m_suchfeld);
    return teil;
}

QWidget *Handbuch::mittelteil()
{
    auto *teiler = new QSplitter;
    teiler->setChildrenCollapsible(false);
    m_inhalt = new QListWidget;
    m_inhalt->setObjectName(QStringLiteral("handbuchinhalt"));
    m_inhalt->addItems(seiten());
    m_blatt = new Handbuchblatt;
    m_blatt->setObjectName(QStringLiteral("handbuchblatt"));
    teiler->addWidget(m_inhalt);
    teiler->addWidget(m_blatt);
    teiler->setSizes({breiteInhalt, fenstergroesse.width() - breiteInhalt});
    teiler->setStretchFactor(1, 1);
    return teiler;
}

QAction *Handbuch::befehl(const QList<QKeySequence> &tasten, const std::function<void()> &aktion)
{
    auto *neu = new QAction(this);
    neu->setShortcuts(tasten);
    connect(neu, &QAction::triggered, this, [aktion] { aktion(); });
    addAction(neu);
    return neu;
}

void Handbuch::beschrifte()
{
    setWindowTitle(localizedString(QStringLiteral("Handbuch")));
    m_zurueck->setText(localizedString(QStringLiteral("Zurück")));
    m_vor->setText(localizedString(QStringLiteral("Vor")));
    m_suchfeld->setPlaceholderText(localizedString(QStringLiteral("Auf dieser Seite suchen")));
    m_suchfeld->setAccessibleName(m_suchfeld->placeholderText());
    m_vergeblich->setText(localizedString(QStringLiteral("Steht nicht auf dieser Seite.")));
    m_inhalt->setAccessibleName(localizedString(QStringLiteral("Seiten des Handbuchs")));
    m_blatt->setAccessibleName(localizedString(QStringLiteral("Seite des Handbuchs")));
    const QStringList alle = seiten();
    for (int i = 0; i < m_inhalt->count(); ++i) {
        m_inhalt->item(i)->setText(titel(alle.value(i)));
    }
}

QStringList Handbuch::seiten()
{
    static const QRegularExpression verweis(QStringLiteral("\\]\\(([^)]+)\\.md\\)"));
    QStringList namen = {ersteSeite};
    const QString text = QString::fromUtf8(inhalt(adresse(ersteSeite)));
    for (const auto &treffer : verweis.globalMatch(text)) {
        namen << treffer.captured(1);
    }
    namen.removeDuplicates();
    return namen;
}

void Handbuch::oeffne(const QString &seite)
{
    zeige(seite);
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    m_blatt->setFocus();
}

void Handbuch::folgeSprache()
{
    beschrifte();
    m_blatt->reload();
}

void Handbuch::zeige(const QString &seite)
{
    folgeVerweis(adresse(seite));
}

/// A link that leads to no page of the handbook leads nowhere.
void Handbuch::folgeVerweis(const QUrl &verweis)
{
    const QUrl ziel = m_blatt->source().resolved(verweis);
    if (ziel.scheme() == adresse(ersteSeite).scheme() && ziel.path().endsWith(endung) &&
        QFile::exists(datei(ziel))) {
        m_blatt->setSource(ziel, QTextDocument::MarkdownResource);
    }
}

void Handbuch::folgeSeite(const QUrl &adresse)
{
    m_seite = adresse.fileName().chopped(endung.size());
    const QSignalBlocker schon(m_inhalt); // the page is on display
    m_inhalt->setCurrentRow(static_cast<int>(seiten().indexOf(m_seite)));
    m_vergeblich->hide();
}

/// From the last place on; after the last one, from the beginning.
void Handbuch::suche()
{
    const QString gesucht = m_suchfeld->text();
    bool gefunden = m_blatt->find(gesucht);
    if (!gefunden) {
        const QTextCursor bisher = m_blatt->textCursor();
        m_blatt->moveCursor(QTextCursor::Start);
        gefunden = m_blatt->find(gesucht);
        if (!gefunden) {
            m_blatt->setTextCursor(bisher);
        }
    }
    m_vergeblich->setVisible(!gefunden && !gesucht.isEmpty());
}

/// A dialog that waits for its answer blocks all windows but those that belong to it. Who was asked
/// something may look it up.
bool Handbuch::event(QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked) {
        haengeAn(QGuiApplication::modalWindow());
    }
    return QWidget::event(event);
}

/// Makes this window one of the dialog's as long as that is open; null: it is its own again.
void Handbuch::haengeAn(QWindow *dialog)
{
    windowHandle()->setTransientParent(dialog);
    if (dialog != nullptr) {
        connect(
            dialog, &QWindow::visibleChanged, this, [this] { haengeAn(nullptr); },
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    }
}

/// Links and lines take their colours when the page is made.
void Handbuch::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_blatt != nullptr) {
        m_blatt->erneuere();
    }
}
