// The small dialog that asks for a custom part's label.
#include "zkeditor/dialogs/getCustomPartLabel.h"

#include "zkcore/base/assert.h"
#include "zkcore/model/elementImpl.h"
#include "zkcore/widgetSupport/fonts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace {

const Property::Key savedPartTitleKey = Property::getKeyForString("title");
const Property::Key savedPartLabelKey = Property::getKeyForString("meta-label");
constexpr int labelDialogWidth = 300;

} // namespace

GetCustomPartLabel::GetCustomPartLabel(PartImpl* part, QWidget* parent, const char* name, bool modal,
                                       Qt::WindowFlags flags)
    : QDialog(parent, flags), m_part(part)
{
    setObjectName(QString::fromUtf8(name));
    setModal(modal);
    setWindowTitle(tr("Choose custom part label"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(10);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    layout->addLayout(row);
    auto* label = new QLabel(tr("Part &label:"));
    m_labelEdit = new QLineEdit;
    m_labelEdit->setObjectName(QStringLiteral("label"));
    label->setBuddy(m_labelEdit);
    row->addWidget(label);
    row->addWidget(m_labelEdit);
    if (m_part) {
        m_lastValidText = m_part->valueOfProperty(savedPartTitleKey).toQString();
        if (m_lastValidText.isEmpty())
            m_lastValidText = m_part->valueOfProperty(savedPartLabelKey).toQString();
    }
    m_labelEdit->setText(m_lastValidText);

    auto* help = new QLabel(tr("The part label appears in the part tree."));
    help->setWordWrap(true);
    layout->addWidget(help);
    m_labelEdit->setAccessibleDescription(help->text());

    auto* buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    m_saveButton = new QPushButton(tr("&Save Part"));
    m_saveButton->setEnabled(false);
    m_saveButton->setDefault(true);
    auto* cancel = new QPushButton(tr("&Cancel"));
    buttons->addStretch();
    buttons->addWidget(m_saveButton);
    buttons->addWidget(cancel);
    connect(m_saveButton, &QPushButton::clicked, this, &GetCustomPartLabel::accept);
    connect(cancel, &QPushButton::clicked, this, &GetCustomPartLabel::reject);
    connect(m_labelEdit, &QLineEdit::textChanged, this, &GetCustomPartLabel::onTextChanged);
    onTextChanged();

    Fonts::setFontRecursively(this, Fonts::Normal);
    setSizeGripEnabled(false);
    setFixedWidth(labelDialogWidth);
    adjustSize();
    setFixedSize(size());
}

bool GetCustomPartLabel::isDataValid() const
{
    QString text = m_labelEdit->text();
    const QRegularExpressionValidator validator(QRegularExpression(QStringLiteral("^\\S.{0,99}$")));
    int position = 0;
    return !text.isEmpty() && validator.validate(text, position) == QValidator::Acceptable;
}

void GetCustomPartLabel::onTextChanged()
{
    if (!m_labelEdit->text().isEmpty() && !isDataValid() && !m_restoringText) {
        m_restoringText = true;
        m_labelEdit->setText(m_lastValidText);
        m_restoringText = false;
    }
    m_lastValidText = m_labelEdit->text();
    enableOkButton();
}

void GetCustomPartLabel::enableOkButton()
{
    m_saveButton->setEnabled(isDataValid());
}

void GetCustomPartLabel::showWarning(const QString& text)
{
    QMessageBox::warning(nullptr, tr("Choose custom part label"), text, QMessageBox::Ok);
}

void GetCustomPartLabel::accept()
{
    ZK_ASSERT(isDataValid());
    QDialog::accept();
}

QString GetCustomPartLabel::getLabel() const
{
    ZK_ASSERT(isDataValid());
    return m_labelEdit->text();
}
