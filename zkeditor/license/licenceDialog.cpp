// The dialog for licence codes.
#include "zkeditor/license/licenceDialog.h"

#include "zkcore/widgetSupport/fonts.h"
#include "zkeditor/license/licenceManager.h"
#include "zkeditor/license/licenceText.h"
#include "zkeditor/widgets/errorLabel.h"
#include "zkeditor/widgets/linkLabel.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

LicenceDialog::LicenceDialog(LicenceManager* manager, QWidget* parent) : QDialog(parent), m_manager(manager)
{
    setWindowTitle(tr("Licence"));
    auto* layout = new QVBoxLayout(this);
    m_status = new QLabel;
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setWordWrap(true);
    // A holder's name is no markup.
    m_status->setTextFormat(Qt::PlainText);
    layout->addWidget(m_status);

    auto* label = new QLabel(tr("Licenc&e code:"));
    m_code = new QPlainTextEdit;
    m_code->setObjectName(QStringLiteral("code"));
    m_code->setTabChangesFocus(true);
    m_code->setAccessibleName(tr("Licence code"));
    m_code->setPlaceholderText(tr("Paste the code here, or type it group by group"));
    label->setBuddy(m_code);
    layout->addWidget(label);
    layout->addWidget(m_code);

    m_verdict = new ErrorLabel;
    m_verdict->setObjectName(QStringLiteral("verdict"));
    m_verdict->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    layout->addWidget(m_verdict);

    m_help = new LinkLabel(tr("How licence codes work"), this, QStringLiteral("helpLink"));
    m_help->setForegroundRole(QPalette::Link);
    m_help->setAccessibleName(m_help->text());
    layout->addWidget(m_help);
    connect(m_help, &LinkLabel::clicked, this, &LicenceDialog::helpRequested);

    auto* buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    m_remove = new QPushButton(tr("&Remove"));
    m_remove->setToolTip(tr("Forget the licence code on this computer"));
    m_remove->setAutoDefault(false);
    auto* ok = new QPushButton(tr("&Ok"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(tr("&Cancel"));
    buttons->addWidget(m_remove);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    connect(m_remove, &QPushButton::clicked, this, &LicenceDialog::onRemove);
    connect(ok, &QPushButton::clicked, this, &LicenceDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &LicenceDialog::reject);
    connect(m_code, &QPlainTextEdit::textChanged, this, &LicenceDialog::onCodeChanged);
    connect(m_manager, &LicenceManager::statusChanged, this, &LicenceDialog::showStatus);

    Fonts::setFontRecursively(this, Fonts::Normal);
    m_code->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    // Five groups in a line and eight lines; three lines for what is wrong.
    const QFontMetrics metrics(m_code->font());
    m_code->setMinimumSize(metrics.horizontalAdvance(QLatin1Char('M')) * 42, metrics.lineSpacing() * 8 + 16);
    m_verdict->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    showStatus();
    onCodeChanged();
    m_code->setFocus();
}

void LicenceDialog::showEvent(QShowEvent* event)
{
    m_help->setVisible(isSignalConnected(QMetaMethod::fromSignal(&LicenceDialog::helpRequested)));
    QDialog::showEvent(event);
}

void LicenceDialog::showStatus()
{
    m_status->setText(m_manager->statusText());
    m_remove->setEnabled(m_manager->state() != LicenceManager::Evaluation);
}

void LicenceDialog::showVerdict(const QString& text, bool wrong)
{
    m_verdict->setWrong(wrong);
    m_verdict->setText(text);
}

void LicenceDialog::onCodeChanged()
{
    const QString text = m_code->toPlainText();
    const licenceText::Reading reading = licenceText::toBytes(text);
    if (reading.fault == licenceText::Reading::Empty) {
        showVerdict(
            tr("A licence code is made of groups of %1 letters and digits. Small letters are as good as capitals.")
                .arg(licenceText::groupLength),
            false);
        return;
    }
    const licenceCode::Check check = m_manager->checkCode(text);
    const bool lastGroupBegun = reading.fault == licenceText::Reading::WrongLength && reading.group == reading.groups &&
                                reading.found < licenceText::groupLength;
    if (check.fault == licenceCode::Check::None)
        showVerdict(tr("The code is right. It is for %1.").arg(check.licence.holder), false);
    else if (lastGroupBegun || check.fault == licenceCode::Check::Length)
        showVerdict(tr("Right so far: %n groups.", nullptr, lastGroupBegun ? reading.groups - 1 : reading.groups),
                    false);
    else
        showVerdict(check.message, true);
}

void LicenceDialog::selectGroup(int group)
{
    const QString text = m_code->toPlainText();
    static const QRegularExpression groups(QStringLiteral("[^\\s\\-]+"));
    auto matches = groups.globalMatch(text);
    for (int i = 1; matches.hasNext(); ++i) {
        const QRegularExpressionMatch match = matches.next();
        if (i != group)
            continue;
        QTextCursor cursor = m_code->textCursor();
        cursor.setPosition(static_cast<int>(match.capturedStart()));
        cursor.setPosition(static_cast<int>(match.capturedEnd()), QTextCursor::KeepAnchor);
        m_code->setTextCursor(cursor);
        m_code->ensureCursorVisible();
        return;
    }
}

void LicenceDialog::accept()
{
    const licenceCode::Check check = m_manager->enterCode(m_code->toPlainText());
    if (check.fault == licenceCode::Check::None) {
        QDialog::accept();
        return;
    }
    if (check.group > 0) {
        // What is undivided is shown in groups, so that the wrong one can be seen.
        const QString shaped = licenceText::normalised(m_code->toPlainText());
        if (shaped != m_code->toPlainText())
            m_code->setPlainText(shaped);
        selectGroup(check.group);
    }
    showVerdict(check.message, true);
    m_code->setFocus();
}

void LicenceDialog::onRemove()
{
    m_manager->removeCode();
    onCodeChanged();
}
