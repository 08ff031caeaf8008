#include "templatedialog.h"

#include "askuser.h"
#include "collectionsdataobject.h"
#include "cutsegment.h"
#include "databasemessages.h"
#include "databasequery.h"
#include "dataset.h"
#include "dialogbuttons.h"
#include "lineplotwidget.h"
#include "modaldialog.h"
#include "signalresampling.h"
#include "signalresamplingform.h"
#include "usererror.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPointer>
#include <QScrollArea>
#include <QSpinBox>

TemplateDialog::TemplateDialog(DataSet* dataSet, CutSegment* segment, QWidget* parent)
    : QDialog(parent), m_DataSet(dataSet), m_From(segment->GetFrom()), m_To(segment->GetTo()),
      m_Name(new QLineEdit), m_Desc(new QLineEdit), m_Collection(new QComboBox),
      m_Resample(new QCheckBox), m_Smooth(new QCheckBox), m_SmoothCentred(new QCheckBox),
      m_Window(new QSpinBox)
{
    setWindowTitle(tr("Add Template"));
    fillCollections();
    auto* left = new QVBoxLayout;
    left->addLayout(makeForm(), 1);
    left->addLayout(MakeDialogButtons(this, tr("Save")));
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left, 1);
    layout->addWidget(makePlots(), 1);
    resize(820, 560);
    m_Name->setFocus();
}

TemplateDialog::~TemplateDialog() = default;

QLayout* TemplateDialog::makeForm()
{
    m_Collection->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_Collection->setMinimumContentsLength(16);
    m_Resample->setChecked(true);
    m_Resample->setToolTip(tr("Ask for factors and store the template once for each"));
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Name "), m_Name);
    form->addRow(tr("Description "), m_Desc);
    form->addRow(tr("Collection "), m_Collection);
    form->addRow(tr("Resample "), m_Resample);
    addSmoothing(form);
    form->addRow(tr("Attributes"), makeAttributes());
    return form;
}

void TemplateDialog::addSmoothing(QFormLayout* form)
{
    m_Smooth->setToolTip(tr("Store the signals smoothed: a window of 8 makes them smaller by a "
                            "tenth and 7 rows late, and leaves both ends raw"));
    m_SmoothCentred->setToolTip(tr("Store the signals smoothed by the same polynomials, but at "
                                   "full size, with no delay and up to both ends"));
    m_Window->setValue(8);
    m_Window->setEnabled(false);
    m_Window->setToolTip(tr("Rows on each side that a value is smoothed over. \"Smooth\" leaves "
                            "twice as many at both ends raw"));
    connect(m_Smooth, &QCheckBox::toggled, this,
            [this] { chooseSmoothing(m_Smooth, m_SmoothCentred); });
    connect(m_SmoothCentred, &QCheckBox::toggled, this,
            [this] { chooseSmoothing(m_SmoothCentred, m_Smooth); });
    form->addRow(tr("Smooth "), m_Smooth);
    form->addRow(tr("Smooth (centred)"), m_SmoothCentred);
    form->addRow(tr("Window Size "), m_Window);
}

// At most one of both is on.
void TemplateDialog::chooseSmoothing(QCheckBox* changed, QCheckBox* other)
{
    if (changed->isChecked())
        other->setChecked(false);
    m_Window->setEnabled(m_Smooth->isChecked() || m_SmoothCentred->isChecked());
}

QWidget* TemplateDialog::makeAttributes()
{
    auto* boxes = new QWidget;
    auto* column = new QVBoxLayout(boxes);
    for (QString name : m_DataSet->GetAttributeNames()) {
        auto* box = new QCheckBox(name.replace(QLatin1Char('&'), QStringLiteral("&&")));
        column->addWidget(box);
        m_Attributes.push_back(box);
    }
    column->addStretch();
    auto* scroll = new QScrollArea;
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setWidget(boxes);
    scroll->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return scroll;
}

QWidget* TemplateDialog::makePlots()
{
    auto* plots = new QWidget;
    auto* column = new QVBoxLayout(plots);
    for (int i = 0; i < m_DataSet->GetAttributeCount(); ++i) {
        auto* plot = new LinePlotWidget(i);
        plot->setMinimumSize(250, 300);
        // Ends the time axis inside the plot, so that the whole segment shows.
        plot->SetRightMargin(PlotLeftMargin);
        plot->SetDataSet(m_DataSet);
        plot->SetRange(m_From, m_To);
        column->addWidget(plot);
    }
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setWidget(plots);
    return scroll;
}

void TemplateDialog::fillCollections()
{
    const QList<CollectionsDataObject*> collections = CollectionsDataObject::GetAllCollections();
    for (const CollectionsDataObject* collection : collections)
        m_Collection->addItem(collection->GetName(), collection->GetId());
    qDeleteAll(collections);
}

PatternRequest TemplateDialog::readInput() const
{
    PatternRequest request;
    request.m_CollectionId = m_Collection->currentData().toInt();
    request.m_Name = m_Name->text().trimmed();
    request.m_Desc = m_Desc->text().trimmed();
    request.m_From = m_From;
    request.m_To = m_To;
    request.m_Factors.append(qMakePair(1, 1));
    if (m_Smooth->isChecked() || m_SmoothCentred->isChecked())
        request.m_SmoothingWindow = m_Window->value();
    request.m_IsCentred = m_SmoothCentred->isChecked();
    for (size_t i = 0; i < m_Attributes.size(); ++i) {
        if (m_Attributes[i]->isChecked())
            request.m_Attributes.append(int(i));
    }
    return request;
}

bool TemplateDialog::checkInput(const PatternRequest& request)
{
    if (request.m_Name.isEmpty()) {
        ShowUserError(this, tr("Error"), tr("Error: No name entered."));
        m_Name->setFocus();
        return false;
    }
    if (request.m_Attributes.isEmpty()) {
        ShowUserError(this, tr("Error"), tr("Error: No data attributes selected."));
        return false;
    }
    if (m_Collection->currentIndex() == -1) {
        // Another process may have kept the database to itself until now.
        fillCollections();
        ShowDatabaseError(this, tr("Error: No collection selected."));
        return false;
    }
    const bool hasRows = 0 <= m_From && m_From < m_To && m_To <= m_DataSet->GetRowCount();
    const QString fault = hasRows ? FindRowFault(*m_DataSet, request) : describeFailure(request);
    if (!fault.isEmpty())
        ShowUserError(this, tr("Error"), fault);
    return fault.isEmpty();
}

bool TemplateDialog::askFactors(PatternRequest& request)
{
    ModalDialog<SignalResamplingForm> form(this);
    if (!form.IsAccepted())
        return false;
    request.m_Factors = form->GetFactors();
    return true;
}

QString TemplateDialog::describeFailure(const PatternRequest& request)
{
    return IsPatternTooLong(request)
               ? tr("Error: The template would be too long. All its signals together can have %1 "
                    "values.")
                     .arg(MaxSignalLength)
               : tr("Error: The segment has no rows.");
}

std::unique_ptr<PatternsDataObject> TemplateDialog::makePattern(const PatternRequest& request)
{
    auto pattern = MakePattern(m_DataSet, request);
    const QString fault = pattern ? FindPatternFault(*pattern) : describeFailure(request);
    if (fault.isEmpty())
        return pattern;
    ShowUserError(this, tr("Error"), fault);
    return nullptr;
}

void TemplateDialog::addTemplate()
{
    PatternRequest request = readInput();
    if (!checkInput(request) || (m_Resample->isChecked() && !askFactors(request)))
        return;
    auto pattern = makePattern(request);
    if (!pattern)
        return;
    if (pattern->InsertPattern(true) == -1) {
        ShowDatabaseError(this, tr("Error: The template was not stored."));
        return;
    }
    m_Pattern = std::move(pattern);
    const QPointer<TemplateDialog> self(this);
    TellUser(this, tr("Pattern Added"), tr("Pattern succesfully uploaded to database"));
    if (self)
        QDialog::accept();
}
