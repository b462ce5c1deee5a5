#include "Anpassungspalette.h"

#include "Werkzeugleiste.h"
#include "Zeichenkettentabelle.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDrag>
#include <QGridLayout>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr int spalten = 5;
constexpr int kachelbild = 32;

/// A tile: dragged with the mouse, put at the end of the bar with Return or the space bar.
class Kachel : public QToolButton
{
public:
    Kachel(const QString &kennung, Werkzeugleiste &leiste, QWidget *parent)
        : QToolButton(parent)
        , m_kennung(kennung)
    {
        setObjectName(QStringLiteral("kachel ") + kennung);
        setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        setIconSize({kachelbild, kachelbild});
        setAutoRaise(true);
        setMinimumSize(120, 72);
        setFocusPolicy(Qt::StrongFocus);
        connect(this, &QToolButton::clicked, this, [this, &leiste] {
            if (m_kennung.isEmpty()) {
                leiste.standardHerstellen();
            } else {
                leiste.einfuegen(m_kennung, static_cast<int>(leiste.kennungen().size()));
            }
        });
    }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        m_druckort = event->position().toPoint();
        QToolButton::mousePressEvent(event);
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        const QPoint weg = event->position().toPoint() - m_druckort;
        if ((event->buttons() & Qt::LeftButton) == 0 ||
            weg.manhattanLength() < QApplication::startDragDistance()) {
            return;
        }
        setDown(false);
        auto *daten = new QMimeData;
        daten->setData(Werkzeugleiste::ziehformat, m_kennung.toUtf8());
        auto *zug = new QDrag(this);
        zug->setMimeData(daten);
        zug->setPixmap(grab());
        zug->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
    }

    /// Return would go to the dialog's default button, which closes the palette.
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            click();
        } else {
            QToolButton::keyPressEvent(event);
        }
    }

private:
    QString m_kennung;
    QPoint m_druckort;
};

/// The two kinds of room have neither label nor picture in the bar; here they need both, so that
/// one sees what is being dragged.
Werkzeug palettenwerkzeug(Werkzeugquelle &quelle, const QString &kennung)
{
    Werkzeug werkzeug = quelle.toolbarItem(kennung);
    if (kennung == Werkzeugleiste::space) {
        werkzeug.palettenbeschriftung = Werkzeugleiste::raumname(kennung);
        werkzeug.bild = QIcon(QStringLiteral(":/bilder/Leerraum.svg"));
    } else if (kennung == Werkzeugleiste::flexibleSpace) {
        werkzeug.palettenbeschriftung = Werkzeugleiste::raumname(kennung);
        werkzeug.bild = QIcon(QStringLiteral(":/bilder/Flexibler Leerraum.svg"));
    }
    return werkzeug;
}

} // namespace

Anpassungspalette::Anpassungspalette(Werkzeugleiste &leiste, QWidget *parent)
    : QDialog(parent)
    , m_leiste(leiste)
{
    setObjectName(QStringLiteral("anpassungspalette"));
    setWindowTitle(localizedString(QStringLiteral("Symbolleiste anpassen")));
    auto *aufbau = new QVBoxLayout(this);
    aufbau->setSpacing(12);
    auto *einleitung = new QLabel(
        localizedString(QStringLiteral("Ziehen Sie Ihre Lieblingsobjekte in die Symbolleiste …")));
    aufbau->addWidget(einleitung);
    aufbau->addWidget(kacheln());
    aufbau->addWidget(new QLabel(
        localizedString(QStringLiteral("… oder ziehen Sie den Standardsatz in die Symbolleiste. "
                                       "Was Sie aus der Leiste herausziehen, verschwindet."))));
    aufbau->addWidget(standardsatz());
    auto *tasten = new QLabel(localizedString(QStringLiteral(
        "Mit der Tastatur: Die Eingabetaste hängt ein Objekt an. F6 wechselt zwischen hier und der "
        "Leiste; dort verschieben Alt und die Pfeiltasten, und Entf nimmt heraus.")));
    tasten->setWordWrap(true);
    aufbau->addWidget(tasten);
    aufbau->addWidget(fusszeile());
    erlaubeWechsel();
    m_leiste.setAnpassbar(true);
    connect(this, &QDialog::finished, this, [this] { m_leiste.setAnpassbar(false); });
}

/// One key goes to and fro, from wherever the keyboard is in the two windows.
void Anpassungspalette::erlaubeWechsel()
{
    auto *wechsel = new QAction(this);
    wechsel->setShortcut(QKeySequence(Qt::Key_F6));
    addAction(wechsel);
    m_leiste.window()->addAction(wechsel);
    connect(wechsel, &QAction::triggered, this, [this] {
        if (isActiveWindow()) {
            m_leiste.window()->activateWindow();
            m_leiste.nimmTastatur(0);
        } else {
            activateWindow();
        }
    });
}

QWidget *Anpassungspalette::kacheln()
{
    auto *flaeche = new QWidget;
    auto *raster = new QGridLayout(flaeche);
    raster->setContentsMargins(0, 0, 0, 0);
    int i = 0;
    for (const QString &kennung : m_leiste.quelle().toolbarAllowedItemIdentifiers()) {
        const Werkzeug werkzeug = palettenwerkzeug(m_leiste.quelle(), kennung);
        auto *kachel = new Kachel(kennung, m_leiste, flaeche);
        kachel->setIcon(werkzeug.bild);
        kachel->setText(werkzeug.palettenbeschriftung);
        raster->addWidget(kachel, i / spalten, i % spalten);
        if (i == 0) {
            kachel->setFocus(); // the keyboard begins where the eye does
        }
        ++i;
    }
    return flaeche;
}

QWidget *Anpassungspalette::standardsatz()
{
    auto *kachel = new Kachel(QString(), m_leiste, this);
    QStringList worte;
    for (const QString &kennung : m_leiste.quelle().toolbarDefaultItemIdentifiers()) {
        const Werkzeug werkzeug = m_leiste.quelle().toolbarItem(kennung);
        if (!werkzeug.beschriftung.isEmpty()) {
            worte << werkzeug.beschriftung;
        }
    }
    kachel->setText(worte.join(QStringLiteral("  ·  ")));
    kachel->setToolButtonStyle(Qt::ToolButtonTextOnly);
    kachel->setAutoRaise(false);
    kachel->setMinimumSize(0, 36);
    kachel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return kachel;
}

QWidget *Anpassungspalette::fusszeile()
{
    auto *zeile = new QWidget;
    auto *anordnung = new QHBoxLayout(zeile);
    anordnung->setContentsMargins(0, 0, 0, 0);
    auto *stil = new QComboBox;
    const std::pair<const char *, Qt::ToolButtonStyle> stile[] = {
        {"Symbol und Text", Qt::ToolButtonTextUnderIcon},
        {"Nur Symbol", Qt::ToolButtonIconOnly},
        {"Nur Text", Qt::ToolButtonTextOnly},
    };
    for (const auto &[text, wert] : stile) {
        stil->addItem(localizedString(QString::fromUtf8(text)), static_cast<int>(wert));
    }
    stil->setCurrentIndex(stil->findData(static_cast<int>(m_leiste.toolButtonStyle())));
    connect(stil, &QComboBox::activated, this, [this, stil] {
        m_leiste.setDarstellung(static_cast<Qt::ToolButtonStyle>(stil->currentData().toInt()));
    });
    auto *fertig = new QPushButton(localizedString(QStringLiteral("Fertig")));
    fertig->setDefault(true);
    connect(fertig, &QPushButton::clicked, this, &QDialog::accept);
    auto *beschriftung = new QLabel(localizedString(QStringLiteral("Anzeigen:")));
    beschriftung->setBuddy(stil);
    anordnung->addWidget(beschriftung);
    anordnung->addWidget(stil);
    anordnung->addStretch();
    anordnung->addWidget(fertig);
    return zeile;
}
