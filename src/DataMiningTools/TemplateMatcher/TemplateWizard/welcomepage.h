#pragma once

#include <QWizardPage>

/// Tells what a template search does.
class WelcomePage : public QWizardPage
{
    Q_OBJECT
public:
    explicit WelcomePage(QWidget* parent = nullptr);
};
