#pragma once

#include "core/outcome.h"
#include "documents/entry.h"
#include "documents/goodslookup.h"
#include "documents/listing.h"
#include "ui/documents/linemodel.h"

#include <QList>
#include <QSqlRecord>
#include <QString>

#include <utility>

class QWidget;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

class DocumentScreen;

// A batch an outgoing line may leave from, as the batch picker shows it.
struct BatchChoice
{
    QString batch; // t_ph
    QString expiry; // t_yxq
    QString produced; // t_scrq
    double stock = 0; // base units
    bool expired = false;
    bool nearExpiry = false; // expires within nearExpiryDays
    bool proposed = false; // the first-expiry-first-out proposal
};

// Days before its expiry from which a batch counts as near expiry on screen.
constexpr int nearExpiryDays = 180;

// What the shared document screen needs to know of one kind of goods document. The screen does
// the header, the lines, the totals, the keys and the lists itself from the kind's descriptor;
// a kind adds its own header fields, its proposals and its operations. Adding a document screen
// is a subclass of this and a registration (see README, "Adding a screen").
class DocumentScreenKind
{
public:
    virtual ~DocumentScreenKind() = default;

    // The descriptor the entry, the lists and the command line share.
    virtual const documents::DocumentKind &entry() const = 0;
    QString title() const { return QString::fromUtf8(entry().title); }

    // Positions in entry().rightArea of checking and unchecking, and of adding goods to a saved
    // unchecked document (0: no right needed).
    virtual int checkRight() const = 0;
    virtual int uncheckRight() const = 0;
    virtual int addToSavedRight() const { return 0; }
    // The position of "may add a new goods" from the goods picker; 0: never offered.
    virtual int newGoodsRight() const { return 0; }

    // Lines that leave the warehouse pick their batch from its stock (earliest expiry first);
    // incoming lines type batch and dates.
    virtual bool outgoing() const = 0;
    // The grid's columns, and the ones Enter visits on a line, the goods first.
    virtual QList<LineField> lineFields() const;
    virtual QList<LineField> enterFields() const;
    // The label of the amount due under the lines ("应付金额").
    virtual QString dueLabel() const = 0;
    // Whether the document stores its amount due negated (a customer return).
    virtual bool dueStoredNegated() const { return false; }
    // The key of the document's report template.
    virtual QString printKey() const = 0;

    // The kind's own header fields with their labels, created once for the screen; loaded from
    // the stored header row, emptied for a new document, locked on a checked one.
    virtual QList<std::pair<QString, QWidget *>> createHeaderFields(QWidget *parent);
    virtual void loadHeader(const QSqlRecord &header);
    virtual void clearHeader();
    virtual void setHeaderReadOnly(bool readOnly);
    // A stored line's own columns into its entry (a return line's link to its receipt line).
    virtual void loadLine(const documents::DocumentLineRow &stored, LineEntry &line) const;

    // The price proposed for a line of the goods in `unit`, per that unit.
    virtual double proposePrice(const shell::Session &session, const documents::GoodsChoice &goods,
        const QString &unit, const QString &party) const = 0;
    // The kind's own figures of a line as it is picked or its unit changes (a sale's cost per line
    // unit, unless typed, and the goods' most per sale); nothing by default.
    virtual void proposeFigures(const shell::Session &session, LineEntry &line,
        const QString &warehouse, const QString &date) const;
    // The line column a typed cost goes into, per base unit; empty: the cost cannot be typed.
    virtual QString costColumn() const { return {}; }
    // The batches of the goods an outgoing line may take, in the order offered: expired ones
    // (coloured) first, then those the project's first-expiry-first-out routine proposes.
    virtual QList<BatchChoice> batchChoices(const shell::Session &session, const QString &goods,
        const QString &warehouse, const QString &date) const;

    // The operations, as the command line runs them. `draft` holds the shared fields and lines;
    // the kind adds its own header fields. Each tells its refusals itself.
    virtual Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft)
        = 0;
    // Checking may ask through a dialog of the kind's own (over `parent`) before the operation.
    virtual Outcome check(shell::Session &session, const QString &number, QWidget *parent) = 0;
    virtual Outcome uncheck(shell::Session &session, const QString &number) = 0;
    virtual Outcome remove(shell::Session &session, const QString &number) = 0;

    // Buttons of the kind's own on the screen's bar (a return taken from a receipt's lines).
    virtual void addActions(DocumentScreen &screen);

    // The captions of the save and the list buttons (F3, F9).
    virtual QString saveCaption() const;
    virtual QString listCaption() const;
    // A kind that is posted as it is saved has no check, uncheck or delete buttons.
    virtual bool hasCheck() const { return true; }
    // A kind whose checked documents cannot be unchecked has no uncheck button.
    virtual bool hasUncheck() const { return hasCheck(); }
    // After a save: by default the screen shows the document as stored.
    virtual void afterSave(DocumentScreen &screen, const QString &number);
    // F9: by default the kind's unchecked documents (UncheckedDialog).
    virtual void showList(DocumentScreen &screen);
};

} // namespace medistock::ui
