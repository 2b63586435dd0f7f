#include "ui/loans/loankind.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "documents/entry.h"
#include "loans/entry.h"
#include "loans/kinds.h"
#include "loans/loancheck.h"
#include "shell/session.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/linemodel.h"
#include "ui/loans/loanlist.h"
#include "ui/loans/returndialog.h"
#include "ui/loans/texts.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSqlRecord>

namespace medistock::ui {

namespace {

QLineEdit *amountField(QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setAlignment(Qt::AlignRight);
    return field;
}

// A term typed per base unit: empty is 0; otherwise a number (the loans module refuses one below
// 0). Refused and told when it is no number or beyond what an amount can hold.
std::optional<double> perUnit(
    const shell::Session &session, const QLineEdit *field, const QString &label)
{
    const QString typed = field->text().trimmed();
    if (typed.isEmpty())
        return 0.0;
    const Result<double> value = documents::readHeaderAmount(label, typed);
    if (!value) {
        session.ui().inform(value.message());
        return std::nullopt;
    }
    return value.value();
}

// The loan line of the grid's current row, once the loan is checked (its id2); 0 for none.
qint64 currentLoanLine(const DocumentScreen &screen)
{
    const int row = screen.grid()->currentIndex().row();
    if (row < 0 || row >= screen.lines()->rowCount())
        return 0;
    return screen.lines()->line(row).columns.value(QStringLiteral("id2")).toLongLong();
}

void openReturn(DocumentScreen &screen, std::optional<qint64> line, LoanReturnDialog::Mode mode)
{
    LoanReturnDialog dialog(screen.workspace(), screen.number(), line, mode, &screen);
    if (dialog.loaded())
        dialog.exec();
}

} // namespace

const documents::DocumentKind &LoanScreenKind::entry() const
{
    return loans::loanKind();
}

int LoanScreenKind::checkRight() const
{
    return loans::loanRight;
}

int LoanScreenKind::uncheckRight() const
{
    return loans::loanRight;
}

QList<LineField> LoanScreenKind::lineFields() const
{
    return { LineField::Row, LineField::Code, LineField::Name, LineField::Packing, LineField::Unit,
        LineField::Batch, LineField::Produced, LineField::Expiry, LineField::Quantity,
        LineField::Price, LineField::Amount, LineField::Stock };
}

QString LoanScreenKind::dueLabel() const
{
    return lntexts::due;
}

QList<std::pair<QString, QWidget *>> LoanScreenKind::createHeaderFields(QWidget *parent)
{
    m_deposit = amountField(parent);
    m_rent = amountField(parent);
    m_account = new QLineEdit(parent);
    m_account->setPlaceholderText(QStringLiteral("现金"));
    return { { lntexts::depositPerUnit, m_deposit }, { lntexts::rentPerUnit, m_rent },
        { lntexts::account, m_account } };
}

void LoanScreenKind::clearHeader()
{
    for (QLineEdit *field : { m_deposit, m_rent, m_account })
        field->clear();
}

void LoanScreenKind::setHeaderReadOnly(bool readOnly)
{
    for (QLineEdit *field : { m_deposit, m_rent, m_account })
        field->setReadOnly(readOnly);
}

// The first line with a quantity shows its terms per unit in the header fields.
void LoanScreenKind::loadLine(const documents::DocumentLineRow &stored, LineEntry &line) const
{
    const QSqlRecord &row = stored.stored;
    line.columns.set(QStringLiteral("id2"), row.value(QStringLiteral("id2")).toLongLong());
    const double lent = row.value(QStringLiteral("jh_sl")).toDouble();
    if (!m_account->text().isEmpty() || lent <= 0)
        return;
    m_deposit->setText(core::plainNumber(row.value(QStringLiteral("jh_yj")).toDouble() / lent));
    m_rent->setText(core::plainNumber(row.value(QStringLiteral("jh_zj")).toDouble()));
    m_account->setText(row.value(QStringLiteral("jh_kmmc")).toString());
}

double LoanScreenKind::proposePrice(const shell::Session &, const documents::GoodsChoice &goods,
    const QString &, const QString &) const
{
    return goods.average;
}

Result<QString> LoanScreenKind::save(shell::Session &session, const documents::DocumentDraft &draft)
{
    const auto deposit = perUnit(session, m_deposit, lntexts::depositPerUnit);
    if (!deposit)
        return Outcome::refused(QString());
    const auto rent = perUnit(session, m_rent, lntexts::rentPerUnit);
    if (!rent)
        return Outcome::refused(QString());
    loans::LoanDraft loan { draft, {} };
    const shell::Parameters &params = session.params();
    for (const documents::LineDraft &line : draft.lines) {
        // A quantity that is no number is named by the shared checks; its deposit stays 0.
        const double quantity = line.quantity.trimmed().toDouble();
        loan.terms.append({ core::plainNumber(params.roundAmount(*deposit * quantity)),
            core::plainNumber(*rent), m_account->text().trimmed() });
    }
    return loans::saveLoan(session, loan);
}

Outcome LoanScreenKind::check(shell::Session &session, const QString &number, QWidget *)
{
    return loans::checkLoan(session, number);
}

Outcome LoanScreenKind::uncheck(shell::Session &session, const QString &number)
{
    return loans::uncheckLoan(session, number);
}

Outcome LoanScreenKind::remove(shell::Session &session, const QString &number)
{
    return loans::deleteLoan(session, number);
}

void LoanScreenKind::addActions(DocumentScreen &screen)
{
    auto *one = new QPushButton(lntexts::newReturn + QStringLiteral("(F10)"), &screen);
    auto *whole = new QPushButton(lntexts::wholeReturn + QStringLiteral("(F11)"), &screen);
    auto *sale = new QPushButton(lntexts::toSale + QStringLiteral("(F12)"), &screen);
    for (QPushButton *button : { one, whole, sale })
        button->setToolTip(lntexts::notChecked);
    QObject::connect(one, &QPushButton::clicked, &screen, [&screen] {
        const qint64 line = currentLoanLine(screen);
        openReturn(screen, line > 0 ? std::optional<qint64>(line) : std::nullopt,
            LoanReturnDialog::Mode::Return);
    });
    QObject::connect(whole, &QPushButton::clicked, &screen,
        [&screen] { openReturn(screen, std::nullopt, LoanReturnDialog::Mode::Return); });
    QObject::connect(sale, &QPushButton::clicked, &screen,
        [&screen] { openReturn(screen, std::nullopt, LoanReturnDialog::Mode::Sale); });
    screen.addCheckedAction(one, QKeySequence(Qt::Key_F10));
    screen.addCheckedAction(whole, QKeySequence(Qt::Key_F11));
    screen.addCheckedAction(sale, QKeySequence(Qt::Key_F12));
    auto *list = new QPushButton(QStringLiteral("借货还货查询(Ctrl+F)"), &screen);
    QObject::connect(list, &QPushButton::clicked, &screen, [&screen] {
        LoanListDialog dialog(screen);
        dialog.exec();
    });
    screen.addBarAction(list, QKeySequence(Qt::CTRL | Qt::Key_F));
}

} // namespace medistock::ui
