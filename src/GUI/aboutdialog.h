#pragma once

#include <QDialog>

/// Says what the program is and where its people are found.
class AboutDialog : public QDialog
{
    Q_OBJECT
public:
    explicit AboutDialog(QWidget* parent = nullptr);
};
