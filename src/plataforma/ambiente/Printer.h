// The system printer: its dialogue, and pages of plain text in a fixed-pitch type.
#pragma once

#include <memory>
#include <QString>
#include <QStringList>
#include <vector>

class QPainter;
class QPrinter;

namespace plataforma {

/// What ShowPrinter leaves out of the dialogue.
enum PrinterDialogFlag : int {
    NoSelection = 0x4,
    NoPageNumbers = 0x8,
    HidePrintToFile = 0x100000,
};
inline constexpr int kSoAImpressora = HidePrintToFile | NoPageNumbers | NoSelection; ///< 0x10000C

/// Documents for the system printer, one after the other. Pages are kept until EndDoc: a document that is not
/// ended, because something failed on the way, prints nothing.
class Printer {
public:
    /// @param documento the name under which it stands in the queue
    explicit Printer(const QString &documento);
    ~Printer();
    Printer(const Printer &) = delete;
    Printer &operator=(const Printer &) = delete;

    /// Asks for the printer, over the active window; the one shown first is the default one.
    /// @param flags sum of PrinterDialogFlag
    /// @throws RuntimeError 32755 cancelled; 482 there is no printer, the printing system does not answer, or
    /// the printer chosen is disabled
    void ShowPrinter(int flags = kSoAImpressora);

    /// The type of what EndDoc prints; Courier New 9 from the beginning. Where the machine has no such type,
    /// Liberation Mono takes its place, which has the same widths.
    /// @param tamanho in points
    void SetFont(const QString &nome, double tamanho);

    /// Adds a block to the page: lines that end in LF or CR LF, below what stands there. A page longer than
    /// the sheet goes on on the next one, a line wider than the sheet is cut by its edge.
    void Print(const QString &bloco);
    void NewPage();
    /// Hands the document over. @throws RuntimeError 482 it could not be handed over, or no printer was asked
    /// for
    void EndDoc();

private:
    void Pinta(QPainter &pintor) const;

    QString m_documento;
    QString m_fonte = QStringLiteral("Courier New");
    double m_tamanho = 9;
    std::unique_ptr<QPrinter> m_printer;
    std::vector<QStringList> m_paginas{{}}; ///< lines of each page
};

} // namespace plataforma
