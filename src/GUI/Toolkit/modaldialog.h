#pragma once

#include <QDialog>
#include <QPointer>
#include <utility>

/// A dialog that is asked for an answer: made with the arguments of its class, run by IsAccepted,
/// deleted with this object. While it runs its parent may go away and take it along, as when a
/// window closes beneath it; that counts as cancelled.
template <class Dialog>
class ModalDialog
{
public:
    template <class... Arguments>
    explicit ModalDialog(Arguments&&... arguments)
        : m_Dialog(new Dialog(std::forward<Arguments>(arguments)...))
    {
    }
    ~ModalDialog() { delete m_Dialog; }
    ModalDialog(const ModalDialog&) = delete;
    ModalDialog& operator=(const ModalDialog&) = delete;

    /// Shows the dialog until the user is through with it.
    bool IsAccepted() { return Run() == QDialog::Accepted; }
    /// The same, with the answer of a dialog that knows more of them; 0 when it is gone.
    int Run()
    {
        const int answer = m_Dialog->exec();
        return m_Dialog ? answer : 0;
    }

    /// Before the dialog runs and when it was accepted; else it may be gone.
    Dialog* operator->() const { return m_Dialog; }
    Dialog* Get() const { return m_Dialog; }

private:
    const QPointer<Dialog> m_Dialog;
};
