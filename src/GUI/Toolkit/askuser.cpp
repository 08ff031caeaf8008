#include "askuser.h"

#include "dataset.h"
#include "modaldialog.h"
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

void TellUser(QWidget* parent, const QString& title, const QString& text)
{
    ModalDialog<QMessageBox>(QMessageBox::Information, title, text, QMessageBox::Ok, parent).Run();
}

bool AskYesNo(QWidget* parent, const QString& title, const QString& question)
{
    ModalDialog<QMessageBox> box(QMessageBox::Question, title, question,
                                 QMessageBox::Yes | QMessageBox::No, parent);
    return box.Run() == QMessageBox::Yes;
}

int AskChoice(QWidget* parent, const QString& title, const QString& label,
              const QStringList& choices, int current)
{
    ModalDialog<QInputDialog> dialog(parent);
    dialog->setWindowTitle(title);
    dialog->setLabelText(label);
    dialog->setComboBoxItems(choices);
    dialog->setTextValue(choices.value(current));
    if (!dialog.IsAccepted())
        return -1;
    // By its place in the box: two choices may have one name.
    const auto* box = dialog->findChild<QComboBox*>();
    return box ? box->currentIndex() : -1;
}

std::optional<QString> AskText(QWidget* parent, const QString& title, const QString& label,
                               const QString& proposal)
{
    ModalDialog<QInputDialog> dialog(parent);
    dialog->setWindowTitle(title);
    dialog->setLabelText(label);
    dialog->setTextValue(proposal);
    return dialog.IsAccepted() ? std::make_optional(dialog->textValue()) : std::nullopt;
}

int AskAttribute(QWidget* parent, const DataSet& data)
{
    return AskChoice(parent, QInputDialog::tr("Attribute to export"),
                     QInputDialog::tr("Attribute: "), data.GetAttributeNames());
}

QString AskSavePath(QWidget* parent, const QString& title, const QString& filter,
                    const QString& proposal)
{
    ModalDialog<QFileDialog> dialog(parent, title, QString(), filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(proposal);
    dialog->setDefaultSuffix(filter.section(QLatin1Char('.'), -1).remove(QLatin1Char(')')));
    return dialog.IsAccepted() ? dialog->selectedFiles().value(0) : QString();
}

QString AskOpenPath(QWidget* parent, const QString& title, const QString& filter)
{
    ModalDialog<QFileDialog> dialog(parent, title, QString(), filter);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return dialog.IsAccepted() ? dialog->selectedFiles().value(0) : QString();
}
