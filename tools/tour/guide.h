#pragma once

#include <QApplication>
#include <QObject>
#include <QPoint>
#include <QSet>
#include <QString>
#include <QWidget>
#include <deque>
#include <functional>
#include <optional>

class QAbstractButton;
class QComboBox;

/// Drives the real program as a user would: a list of steps, each run from the event loop when
/// what it waits for has come true, with real mouse and key events. Steps go on inside modal
/// dialogs. The first step that cannot do its work ends the tour with exit code 1.
class Guide : public QObject
{
public:
    /// Pictures go to folder, which must exist.
    explicit Guide(const QString& folder);

    /// Appends a step: act runs once ready is true, or as soon as the step before it is over.
    void Step(const QString& name, const std::function<bool()>& ready,
              const std::function<void()>& act);
    void Step(const QString& name, const std::function<void()>& act);

    /// Runs all steps in the event loop.
    /// Returns 0 when every step did what it should, else 1.
    int Run();

    /// Saves what the screen shows of the windows now open, or of one of them, as folder/name.png.
    /// A name comes true once: a chapter taken again leaves its pictures alone.
    void Picture(const QString& name, const QWidget* only = nullptr);
    /// Ends the tour with a message when condition is false.
    void Expect(bool condition, const QString& message);

    /// Clicks through menus of window's menu bar by their titles, last the entry; a sub-menu is
    /// opened on the way. beforeEntry runs while the menu with the entry is on the screen.
    void ChooseFromMenu(
        QWidget* window, const QStringList& titles,
        const std::function<void()>& beforeEntry = [] {});
    void Click(QAbstractButton* button);
    /// Opens the box and clicks the entry of that text.
    void Choose(QComboBox* box, const QString& text);
    void ClickAt(QWidget* widget, const QPoint& position, Qt::KeyboardModifiers modifiers = {});
    /// Presses the left button at from and drags to to in several moves.
    void Drag(QWidget* widget, const QPoint& from, const QPoint& to);
    /// Presses the right button and waits for the menu that comes up.
    void OpenContextMenu(QWidget* widget, const QPoint& position);
    /// Clicks the entry of that title in the menu that is open.
    void ChooseFromContextMenu(const QString& title);
    /// Presses twice on source, holds the button and lets go on target.
    void DragAndDrop(QWidget* source, const QPoint& from, QWidget* target);
    /// Selects all text of a line edit or spin box and types over it.
    void TypeInto(QWidget* field, const QString& text);
    /// Puts a path into the file dialog that is open and presses its button of that text.
    void PickFile(const QString& path, const QString& button);

    /// The visible button of that text or accessible name in parent; the tour fails without one.
    QAbstractButton* Button(QWidget* parent, const QString& text);
    /// The field of type T beside the label of that text in parent; the tour fails without one.
    template <class T>
    T* Field(QWidget* parent, const QString& label);
    /// The visible top-level window of type T, or null.
    template <class T>
    static T* Window();
    template <class T>
    static bool IsOpen()
    {
        return Window<T>() != nullptr;
    }
    /// No modal window is in the way of the main window.
    static bool IsNothingOpen();

private:
    struct TourStep {
        QString name;
        std::function<bool()> ready;
        std::function<void()> act;
    };

    QWidget* fieldBeside(QWidget* parent, const QString& label);
    void next();
    void poll(int attemptsLeft);
    static QWidgetList topLevels();

    QString m_Folder;
    QSet<QString> m_PicturesTaken;
    std::deque<TourStep> m_Steps;
    QString m_Current;
    // While a step acts: the modal window it found. Steps go on only inside another one.
    std::optional<QWidget*> m_ActingIn;
    bool m_Failed = false;
};

template <class T>
T* Guide::Field(QWidget* parent, const QString& label)
{
    QWidget* field = fieldBeside(parent, label);
    auto* found = qobject_cast<T*>(field);
    if (!found && field)
        found = field->findChild<T*>();
    Expect(found, QStringLiteral("no field ") + label);
    return found;
}

template <class T>
T* Guide::Window()
{
    for (QWidget* window : topLevels()) {
        if (auto* found = qobject_cast<T*>(window); found && found->isVisible())
            return found;
    }
    return nullptr;
}
