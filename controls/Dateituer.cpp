#include "Dateituer.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

QFileDialog::FileMode modus(Dateifrage::Zweck zweck)
{
    switch (zweck) {
    case Dateifrage::Zweck::Lesen:
        return QFileDialog::ExistingFile;
    case Dateifrage::Zweck::AlleLesen:
        return QFileDialog::ExistingFiles;
    case Dateifrage::Zweck::Ordner:
        return QFileDialog::Directory;
    case Dateifrage::Zweck::Schreiben:
        break;
    }
    return QFileDialog::AnyFile;
}

} // namespace

void frageNachDatei(QWidget *fenster, const Dateifrage &frage,
                    const std::function<void(const QString &)> &antwort)
{
    const bool ordner = frage.zweck == Dateifrage::Zweck::Ordner;
    auto *dialog = new QFileDialog(fenster, frage.titel,
                                   ordner ? frage.vorschlag : QFileInfo(frage.vorschlag).path());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(modus(frage.zweck));
    dialog->setOption(QFileDialog::ShowDirsOnly, ordner);
    if (!frage.arten.isEmpty()) {
        dialog->setNameFilter(frage.arten);
    }
    dialog->setDefaultSuffix(frage.endung);
    if (frage.zweck == Dateifrage::Zweck::Schreiben) {
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        dialog->selectFile(QFileInfo(frage.vorschlag).fileName());
    }
    // Answered when the dialog has gone: what follows may open windows of its own.
    QObject::connect(
        dialog, &QFileDialog::filesSelected, fenster,
        [antwort](const QStringList &pfade) {
            for (const QString &pfad : pfade) {
                antwort(pfad);
            }
        },
        Qt::QueuedConnection);
    dialog->open();
}
