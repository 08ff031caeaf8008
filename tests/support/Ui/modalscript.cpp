#include "modalscript.h"

#include <QAbstractButton>
#include <QApplication>
#include <QErrorMessage>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QProgressDialog>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

ModalScript::ModalScript()
{
    QTimer::singleShot(0, this, &ModalScript::look);
}

ModalScript::~ModalScript()
{
    const int missing = m_Steps.size() + m_Stops;
    if (missing > 0)
        QTest::qFail(qPrintable(QStringLiteral("%1 expected windows never came").arg(missing)),
                     __FILE__, __LINE__);
}

void ModalScript::look()
{
    // Armed before the step runs: the step may bring up a window of its own.
    QTimer::singleShot(10, this, &ModalScript::look);
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible() || m_Seen.contains(dialog))
        return;
    if (qobject_cast<QProgressDialog*>(dialog)) {
        if (m_Stops > 0) {
            --m_Stops;
            ClickButton(dialog, QStringLiteral("Cancel"));
        }
        return;
    }
    m_Seen.append(dialog);
    if (m_Steps.isEmpty())
        refuse(dialog);
    else
        m_Steps.takeFirst()(dialog);
}

void ModalScript::refuse(QDialog* dialog)
{
    QTest::qFail(qPrintable(QStringLiteral("unexpected window \"%1\" (%2)")
                                .arg(dialog->windowTitle(),
                                     QLatin1String(dialog->metaObject()->className()))),
                 __FILE__, __LINE__);
    dialog->reject();
}

void ModalScript::PickFile(const QString& path)
{
    On<QFileDialog>([path](QFileDialog* dialog) {
        auto* end = static_cast<QDialog*>(dialog);
        if (path.isEmpty()) {
            end->reject();
            return;
        }
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        end->accept();
    });
}

QStringList TakeUserErrors()
{
    QStringList errors;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* box = qobject_cast<QErrorMessage*>(widget);
        if (!box || !box->isVisible())
            continue;
        errors.append(box->windowTitle() + QStringLiteral(": ") +
                      box->findChild<QTextEdit*>()->toPlainText());
        box->close();
    }
    return errors;
}

QAbstractButton* FindButton(const QWidget* widget, const QString& text)
{
    for (auto* button : widget->findChildren<QAbstractButton*>()) {
        if (button->text().remove(QLatin1Char('&')) == text)
            return button;
    }
    QTest::qFail(qPrintable(QStringLiteral("no button \"%1\"").arg(text)), __FILE__, __LINE__);
    return nullptr;
}

void ChooseFromMenu(const QString& text)
{
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY2(menu, "no menu is open");
    for (QAction* entry : menu->actions()) {
        if (entry->text() == text)
            menu->setActiveAction(entry);
    }
    QVERIFY2(menu->activeAction(), qPrintable(QStringLiteral("no entry ") + text));
    QTest::keyClick(menu, Qt::Key_Return);
}

void ClickButton(const QWidget* widget, const QString& text)
{
    if (QAbstractButton* button = FindButton(widget, text))
        QTest::mouseClick(button, Qt::LeftButton);
}
