// The one failure type that the platform throws: a number and a text fit for the operator.
#pragma once

#include <exception>
#include <QByteArray>
#include <QString>

namespace plataforma {

/// Numbers of run-time failures.
enum ErrorNumber : int {
    ErrInvalidCall = 5, ///< bad argument
    ErrSubscript = 9,   ///< no such element of a control array
    ErrDivisionByZero = 11,
    ErrTypeMismatch = 13, ///< a text that is no number or no date
    ErrFileNotFound = 53,
    ErrDiskFull = 61,
    ErrFileAccess = 75, ///< a file that cannot be changed (rights)
    ErrPrinter = 482,
    ErrNoCurrentRecord = 3021,
    ErrFileMissing = 3024, ///< the store file does not exist
    ErrLock = 3050,        ///< the store is locked by another program
    ErrOpen = 3051,        ///< the store cannot be opened or written (rights, disk)
    ErrQuery = 3075,       ///< query syntax
    ErrNoTable = 3078,
    ErrNoField = 3265, ///< no such field in the dynaset
    ErrNotADatabase = 3343,
    ErrObjectClosed = 3420, ///< the store or the dynaset is not open
    ErrDialogCancelled = 32755,
};

class RuntimeError : public std::exception {
public:
    RuntimeError(int number, const QString &text) : m_number(number), m_text(text), m_what(text.toUtf8()) {}
    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] const QString &text() const { return m_text; } ///< Portuguese; says what failed, on what
    [[nodiscard]] const char *what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_text;
    QByteArray m_what;
};

} // namespace plataforma
