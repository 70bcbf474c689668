// The dialog behind "Save as custom part".
#include "zkeditor/dialogs/addCustomPart.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/documentImpl.h"
#include "zkcore/widgetSupport/fonts.h"
#include "zkeditor/widgets/comboBox.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace {

const Property::Key customPartLabelKey = Property::getKeyForString("meta-label");
const Property::Key customPartGroupKey = Property::getKeyForString("meta-group");
const Property::Key customPartLevelKey = Property::getKeyForString("meta-keystage");

/// A field with its label and, below both, what it is for.
void addCustomPartRow(QGridLayout* grid, const QString& text, QWidget* field, const QString& help)
{
    const int row = grid->rowCount() == 1 ? 0 : grid->rowCount();
    auto* label = new QLabel(text);
    label->setBuddy(field);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    auto* helpLabel = new QLabel(help);
    helpLabel->setWordWrap(true);
    grid->addWidget(helpLabel, row + 1, 0, 1, 2);
    field->setAccessibleDescription(help);
}

} // namespace

AddCustomPartDialog::AddCustomPartDialog(PartImpl* part, DocumentImpl* document, QWidget* parent, const char* name,
                                         bool modal)
    : QDialog(parent), m_part(part), m_document(document)
{
    ZK_ASSERT(m_part && m_document);
    setObjectName(QString::fromUtf8(name));
    setModal(modal);
    setWindowTitle(tr("Add custom part"));
    m_domain = getDomainAsString(part->classId());

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(10);
    auto* grid = new QGridLayout;
    grid->setSpacing(10);
    layout->addLayout(grid);

    m_nameEdit = new QLineEdit;
    m_nameEdit->setObjectName(QStringLiteral("name"));
    // Small letters are as good as capitals; digits and blanks are not.
    const QRegularExpression letters(QStringLiteral("[A-Z_\\-]+"), QRegularExpression::CaseInsensitiveOption);
    m_nameEdit->setValidator(new QRegularExpressionValidator(letters, m_nameEdit));
    m_labelEdit = new QLineEdit;
    m_labelEdit->setObjectName(QStringLiteral("label"));
    if (part->hasProperty(customPartLabelKey))
        m_labelEdit->setText(part->valueOfProperty(customPartLabelKey).toQString());
    m_groupEdit = new QLineEdit;
    m_groupEdit->setObjectName(QStringLiteral("group"));
    if (part->hasProperty(customPartGroupKey))
        m_groupEdit->setText(part->valueOfProperty(customPartGroupKey).toQString());
    m_levelChooser = new ComboBox;
    m_levelChooser->setObjectName(QStringLiteral("level"));
    for (int level = 1; level <= 6; ++level)
        m_levelChooser->addItem(QString::number(level));
    if (part->hasProperty(customPartLevelKey)) {
        const int item = m_levelChooser->findText(part->valueOfProperty(customPartLevelKey).toQString());
        if (item >= 0)
            m_levelChooser->setCurrentIndex(item);
    }
    addCustomPartRow(grid, tr("Part &name:"), m_nameEdit,
                     tr("The part name must be unique and can contain no spaces."));
    addCustomPartRow(grid, tr("Part &label:"), m_labelEdit, tr("The part label appears in the part tree."));
    addCustomPartRow(grid, tr("Part &group:"), m_groupEdit,
                     tr("The part group defines part tree folder the part appears in."));
    addCustomPartRow(grid, tr("Part &level:"), m_levelChooser,
                     tr("This define's the part's educational level, e.g. keystate."));

    auto* buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    m_addButton = new QPushButton(tr("&Add"));
    m_addButton->setEnabled(false);
    m_addButton->setDefault(true);
    auto* cancel = new QPushButton(tr("&Cancel"));
    buttons->addStretch();
    buttons->addWidget(m_addButton);
    buttons->addWidget(cancel);
    connect(m_addButton, &QPushButton::clicked, this, &AddCustomPartDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &AddCustomPartDialog::reject);
    for (QLineEdit* edit : {m_nameEdit, m_labelEdit, m_groupEdit})
        connect(edit, &QLineEdit::textChanged, this, &AddCustomPartDialog::enableOkButton);

    Fonts::setFontRecursively(this, Fonts::Normal);
    setSizeGripEnabled(false);
    adjustSize();
    setFixedSize(size());
}

bool AddCustomPartDialog::isDataValid() const
{
    return !m_nameEdit->text().isEmpty() && !m_labelEdit->text().isEmpty() && !m_groupEdit->text().isEmpty();
}

void AddCustomPartDialog::enableOkButton()
{
    m_addButton->setEnabled(isDataValid());
}

void AddCustomPartDialog::showWarning(const QString& text)
{
    QMessageBox::warning(nullptr, tr("Add custom part"), text, QMessageBox::Ok);
}

void AddCustomPartDialog::accept()
{
    ZK_ASSERT(isDataValid());
    const QString name = m_nameEdit->text();
    const ClassId cid = getCidForString(m_domain + QLatin1Char('/') + name);
    if (m_document->getNodeDb()->lookupPrototype(cid)) {
        showWarning(tr("The part id %1 is already in use.\nPlease enter another id").arg(name));
        return;
    }
    // The part may be gone by now, if something else changed the document.
    if (NodeImpl::valid(m_part) && m_document->addCustomPartDefinition(cid, m_part, m_labelEdit->text()))
        Q_EMIT partAddedToNodeDb();
    QDialog::accept();
}
