#include "guide.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QTextStream>
#include <QTimer>

namespace
{

constexpr int pollInterval = 20; // ms
constexpr int maxPolls = 1500;   // 30 s: a step may wait for an import
constexpr int dragMoves = 12;
// A file dialog names and enables its button only when it has looked for the file.
constexpr int patience = 5000; // ms

// The text as it shows: of two ampersands one.
QString withoutMnemonic(QString text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&(.)"));
    return text.replace(mnemonic, QStringLiteral("\\1"));
}

QAction* entry(const QWidget* menu, const QString& title)
{
    for (QAction* action : menu->actions()) {
        if (withoutMnemonic(action->text()) == title && action->isVisible())
            return action;
    }
    return nullptr;
}

} // namespace

Guide::Guide(const QString& folder) : m_Folder(folder) {}

void Guide::Step(const QString& name, const std::function<bool()>& ready,
                 const std::function<void()>& act)
{
    m_Steps.push_back({name, ready, act});
}

void Guide::Step(const QString& name, const std::function<void()>& act)
{
    Step(
        name, [] { return true; }, act);
}

int Guide::Run()
{
    next();
    const int code = QApplication::exec();
    return m_Failed || !m_Steps.empty() ? 1 : code;
}

void Guide::next()
{
    QTimer::singleShot(pollInterval, this, [this] { poll(maxPolls); });
}

void Guide::poll(int attemptsLeft)
{
    if (m_ActingIn && *m_ActingIn == QApplication::activeModalWidget()) {
        QTimer::singleShot(pollInterval, this, [=] { poll(attemptsLeft); });
        return;
    }
    if (m_Failed)
        return;
    if (m_Steps.empty()) {
        QApplication::closeAllWindows();
        QApplication::quit();
        return;
    }
    if (!m_Steps.front().ready()) {
        Expect(attemptsLeft > 0, QStringLiteral("waited in vain for its turn"));
        QTimer::singleShot(pollInterval, this, [=] { poll(attemptsLeft - 1); });
        return;
    }
    const TourStep step = m_Steps.front();
    QTextStream(stdout) << step.name << '\n';
    // The act may open a modal dialog and return only when that is closed: whatever closes it is
    // a later step, so the next one is asked for first.
    QTimer::singleShot(0, this, [this, act = step.act] {
        m_Current = m_Steps.front().name;
        m_Steps.pop_front();
        next();
        m_ActingIn = QApplication::activeModalWidget();
        act();
        m_ActingIn.reset();
    });
}

void Guide::Picture(const QString& name, const QWidget* only)
{
    if (m_PicturesTaken.contains(name))
        return;
    m_PicturesTaken.insert(name);
    QTest::qWait(100);
    QRect area;
    for (const QWidget* window : topLevels()) {
        if (window->isVisible() && (!only || window == only))
            area |= window->frameGeometry();
    }
    QScreen* screen = QGuiApplication::primaryScreen();
    area &= screen->geometry();
    const QPixmap picture = screen->grabWindow(0, area.x(), area.y(), area.width(), area.height());
    const QString file = m_Folder + QLatin1Char('/') + name + QStringLiteral(".png");
    Expect(picture.save(file), QStringLiteral("cannot write ") + file);
}

void Guide::Expect(bool condition, const QString& message)
{
    if (condition || m_Failed)
        return;
    m_Failed = true;
    QGuiApplication::primaryScreen()->grabWindow(0).save(m_Folder + QStringLiteral("/failed.png"));
    QTextStream(stderr) << "The tour failed at or after \"" << m_Current << "\": " << message
                        << '\n';
    // A modal dialog may be open: leaving through the event loop could wait for it for ever.
    std::exit(1);
}

void Guide::ChooseFromMenu(QWidget* window, const QStringList& titles,
                           const std::function<void()>& beforeEntry)
{
    auto* bar = window->findChild<QMenuBar*>();
    Expect(bar, QStringLiteral("the window has no menu bar"));
    QAction* top = entry(bar, titles.first());
    Expect(top, QStringLiteral("no menu ") + titles.first());
    ClickAt(bar, bar->actionGeometry(top).center());
    QMenu* menu = top->menu();
    for (int i = 1; i < titles.size(); ++i) {
        Expect(QTest::qWaitFor([menu] { return menu->isVisible(); }, patience),
               QStringLiteral("no menu opens for ") + titles[i - 1]);
        QAction* action = entry(menu, titles[i]);
        Expect(action && action->isEnabled(), QStringLiteral("no entry ") + titles[i]);
        if (i + 1 == titles.size())
            beforeEntry();
        ClickAt(menu, menu->actionGeometry(action).center());
        QTest::qWait(50);
        menu = action->menu();
    }
}

void Guide::Click(QAbstractButton* button)
{
    Expect(button && QTest::qWaitFor(
                         [button] { return button->isEnabled() && button->isVisible(); }, patience),
           QStringLiteral("a button cannot be clicked"));
    ClickAt(button, QPoint(10, button->height() / 2));
}

void Guide::Choose(QComboBox* box, const QString& text)
{
    const int index = box->findText(text);
    Expect(index >= 0, QStringLiteral("no entry ") + text);
    ClickAt(box, box->rect().center());
    QAbstractItemView* list = box->view();
    // Until then the box takes a click in its list for the end of the one that opened it.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    const QModelIndex item = list->model()->index(index, box->modelColumn());
    list->scrollTo(item);
    ClickAt(list->viewport(), list->visualRect(item).center());
    QTest::qWait(50);
    Expect(box->currentText() == text, QStringLiteral("cannot choose ") + text);
}

void Guide::ClickAt(QWidget* widget, const QPoint& position, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseMove(widget, position);
    QTest::mouseClick(widget, Qt::LeftButton, modifiers, position);
}

void Guide::Drag(QWidget* widget, const QPoint& from, const QPoint& to)
{
    QTest::mouseMove(widget, from);
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    for (int i = 1; i <= dragMoves; ++i) {
        const QPoint position = from + (to - from) * i / dragMoves;
        // QTest::mouseMove tells no buttons; a drag needs the left one held.
        QMouseEvent move(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
        QTest::qWait(5);
    }
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
}

void Guide::OpenContextMenu(QWidget* widget, const QPoint& position)
{
    QTest::mouseMove(widget, position);
    QTest::mouseClick(widget, Qt::RightButton, {}, position);
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, widget->mapToGlobal(position));
    QApplication::sendEvent(widget, &event);
    QTest::qWait(50);
    Expect(Window<QMenu>(), QStringLiteral("no context menu comes up"));
}

void Guide::ChooseFromContextMenu(const QString& title)
{
    auto* menu = Window<QMenu>();
    Expect(menu, QStringLiteral("no menu is open"));
    QAction* action = entry(menu, title);
    Expect(action && action->isEnabled(), QStringLiteral("no entry ") + title);
    ClickAt(menu, menu->actionGeometry(action).center());
}

void Guide::DragAndDrop(QWidget* source, const QPoint& from, QWidget* target)
{
    // The drag has an event loop of its own: what ends it is arranged before it starts.
    const QPoint drop = target->mapToGlobal(target->rect().center());
    QWindow* window = source->window()->windowHandle();
    for (const int delay : {200, 400})
        QTimer::singleShot(delay, this, [=] { QCursor::setPos(drop - QPoint(delay / 100, 0)); });
    QTimer::singleShot(600, this, [=] {
        QTest::mouseRelease(window, Qt::LeftButton, {}, window->mapFromGlobal(drop));
    });
    QTest::mouseMove(source, from);
    QTest::mouseDClick(source, Qt::LeftButton, {}, from);
}

void Guide::TypeInto(QWidget* field, const QString& text)
{
    Expect(field && field->isEnabled() && field->isVisible(),
           QStringLiteral("no field for ") + text);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
}

void Guide::PickFile(const QString& path, const QString& button)
{
    auto* dialog = Window<QFileDialog>();
    Expect(dialog, QStringLiteral("no file dialog is open"));
    auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    // At once: while a path is typed, the dialog looks into every folder on the way. And again
    // when the dialog, which is still looking around, has put another text there.
    const auto insert = [&] {
        name->selectAll();
        name->insert(path);
        return name->text() == path;
    };
    Expect(QTest::qWaitFor(insert, patience),
           QStringLiteral("the path does not stand in the dialog"));
    // Not the Return key: the list of completions may be open and take it.
    Click(Button(dialog, button));
}

QAbstractButton* Guide::Button(QWidget* parent, const QString& text)
{
    QAbstractButton* found = nullptr;
    const auto find = [&] {
        for (QAbstractButton* button : parent->findChildren<QAbstractButton*>()) {
            if (button->isVisible() &&
                (withoutMnemonic(button->text()) == text || button->accessibleName() == text))
                found = button;
        }
        return found != nullptr;
    };
    Expect(QTest::qWaitFor(find, patience), QStringLiteral("no button ") + text);
    return found;
}

QWidget* Guide::fieldBeside(QWidget* parent, const QString& label)
{
    for (const QLabel* text : parent->findChildren<QLabel*>()) {
        if (text->isVisible() && withoutMnemonic(text->text()) == label && text->buddy())
            return text->buddy();
    }
    return nullptr;
}

bool Guide::IsNothingOpen()
{
    return !QApplication::activeModalWidget();
}

QWidgetList Guide::topLevels()
{
    return QApplication::topLevelWidgets();
}
