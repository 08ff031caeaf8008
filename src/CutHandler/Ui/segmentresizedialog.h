#pragma once

#include <QDialog>

class QPushButton;
class SegmentResizeWidget;

/// Asks for the new ends of a segment. Ends in the wrong order cannot be saved.
class SegmentResizeDialog : public QDialog
{
    Q_OBJECT
public:
    explicit SegmentResizeDialog(QWidget* parent = nullptr);

    SegmentResizeWidget* GetResizeWidget() const { return m_ResizeWidget; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void enableSave();

    SegmentResizeWidget* m_ResizeWidget;
    QPushButton* m_Save = nullptr;
};
