#pragma once

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <functional>

/// Plays the user in front of modal windows: each window that comes up, also one on top of
/// another, is handed to the next step. A window nobody expects is closed and fails the test,
/// and so does a step that never came.
class ModalScript : public QObject
{
    Q_OBJECT
public:
    ModalScript();
    ~ModalScript() override;

    using Step = std::function<void(QDialog*)>;
    /// A step that acts on the dialog; it has to bring its end about.
    void Then(Step step) { m_Steps.append(std::move(step)); }
    /// The same for a dialog of a certain class.
    template <class Dialog>
    void On(std::function<void(Dialog*)> step)
    {
        Then([=](QDialog* dialog) {
            auto* typed = qobject_cast<Dialog*>(dialog);
            typed ? step(typed) : refuse(dialog);
        });
    }
    /// Picks a file in a file dialog; an empty path cancels it.
    void PickFile(const QString& path);
    /// Presses Cancel when the next progress comes up; progress is nothing to wait for otherwise.
    void StopWork() { ++m_Stops; }

private:
    void look();
    void refuse(QDialog* dialog);

    QList<Step> m_Steps;
    int m_Stops = 0;
    QList<QPointer<QWidget>> m_Seen;
};

/// "title: text" of all open user errors, which are closed.
QStringList TakeUserErrors();

/// The button of that text below widget; it is checked to be there.
class QAbstractButton* FindButton(const QWidget* widget, const QString& text);

/// Chooses the entry of that text in the menu that is open, with the keyboard.
void ChooseFromMenu(const QString& text);

/// Clicks the button with the mouse.
void ClickButton(const QWidget* widget, const QString& text);
