#include "filespecificationpage.h"

#include "attributenamedialog.h"
#include "headernamedialog.h"
#include "importfinish.h"
#include "modaldialog.h"
#include <QComboBox>
#include <QPointer>
#include <QSignalBlocker>

namespace
{

constexpr int PREVIEW_ROWS = 10;
constexpr int PRESET_CUSTOM = 5;

} // namespace

FileSpecificationPage::FileSpecificationPage(std::unique_ptr<DataSet>* dataSet, QWidget* parent)
    : DataImportPage(dataSet, tr("Text file (*)"), PREVIEW_ROWS, parent), m_Preset(new QComboBox)
{
    for (int number = 1; number <= PRESET_CUSTOM; ++number)
        m_Preset->addItem(tr("Preset %1").arg(number));
    m_Preset->addItem(tr("Custom"));
    m_Preset->setToolTip(tr("Names and types for the columns of common loggers"));
    addPreviewField(tr("Preset Headers"), m_Preset);

    connect(m_Preset, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &FileSpecificationPage::setPresetNames);
    // An import goes back to the first preset; the one that the box still shows can be picked
    // again.
    connect(m_Preset, QOverload<int>::of(&QComboBox::activated), this, [this](int preset) {
        if (preset != m_AppliedPreset)
            setPresetNames(preset);
    });
}

void FileSpecificationPage::setPresetNames(int preset)
{
    m_AppliedPreset = preset;
    if (preset == PRESET_CUSTOM)
        askForNames();
    else
        m_Headers = PresetHeaders(preset, getColumnCount());
    showHeaders(m_Headers.m_Names);
}

void FileSpecificationPage::askForNames()
{
    const QPointer<FileSpecificationPage> self(this);
    ModalDialog<AttributeNameDialog> dialog(getColumnCount(), this);
    if (dialog.IsAccepted()) {
        m_Headers = dialog->GetHeaders();
        return;
    }
    if (!self)
        return;
    {
        const QSignalBlocker blocker(m_Preset);
        m_Preset->setCurrentIndex(0);
    }
    setPresetNames(0);
}

void FileSpecificationPage::headerClicked(int column)
{
    if (column < 0 || column >= m_Headers.m_Names.size())
        return;
    ModalDialog<HeaderNameDialog> dialog(m_Headers.m_Names.at(column), m_Headers.m_Types.at(column),
                                         this);
    if (!dialog.IsAccepted())
        return;
    m_Headers.m_Names[column] = dialog->GetName();
    m_Headers.m_Types[column] = dialog->GetType();
    showHeaders(m_Headers.m_Names);
}

bool FileSpecificationPage::validatePage()
{
    if (!checkDataSet())
        return false;
    FinishImport(**m_DataSet, m_Headers, getSamplingRate());
    return true;
}
