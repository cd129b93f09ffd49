// See Printer.h.
#include "plataforma/ambiente/Printer.h"

#include "plataforma/ambiente/PrintServer.h"
#include "plataforma/ambiente/TeclasDoDialogo.h"
#include "plataforma/basico/RuntimeError.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRadioButton>

namespace plataforma {

namespace {

QPrintDialog::PrintDialogOptions OpcoesDe(int flags)
{
    QPrintDialog::PrintDialogOptions opcoes =
        QPrintDialog::PrintShowPageSize | QPrintDialog::PrintCollateCopies;
    opcoes.setFlag(QPrintDialog::PrintSelection, !(flags & NoSelection));
    opcoes.setFlag(QPrintDialog::PrintPageRange, !(flags & NoPageNumbers));
    opcoes.setFlag(QPrintDialog::PrintToFile, !(flags & HidePrintToFile));
    return opcoes;
}

/// The toolkit offers page numbers, which the printing system would pick, whatever the options say.
class Dialogo final : public QPrintDialog {
public:
    Dialogo(QPrinter *printer, int flags)
        : QPrintDialog(printer, QApplication::activeWindow()), m_flags(flags)
    {
        setOptions(OpcoesDe(flags));
    }
    void setVisible(bool visivel) override
    {
        QPrintDialog::setVisible(visivel);
        if (m_flags & NoPageNumbers)
            for (const char *nome : {"printRange", "pagesRadioButton"})
                if (auto *opcao = findChild<QRadioButton *>(QLatin1String(nome)))
                    opcao->setEnabled(false);
    }

private:
    int m_flags;
};

QFont FonteDe(const QString &nome, double tamanho)
{
    QFont fonte;
    fonte.setFamilies({nome, QStringLiteral("Liberation Mono")});
    fonte.setStyleHint(QFont::TypeWriter);
    fonte.setFixedPitch(true);
    fonte.setKerning(false);
    fonte.setPointSizeF(tamanho);
    return fonte;
}

RuntimeError NaoImprime(const QString &texto)
{
    return {ErrPrinter, texto};
}

QStringList LinhasDe(const QString &bloco)
{
    QStringList linhas = bloco.split(QLatin1Char('\n'));
    for (QString &linha : linhas)
        if (linha.endsWith(QLatin1Char('\r')))
            linha.chop(1);
    if (linhas.last().isEmpty())
        linhas.removeLast(); // behind the end of the last line
    return linhas;
}

} // namespace

Printer::Printer(const QString &documento) : m_documento(documento) {}

Printer::~Printer() = default;

void Printer::ShowPrinter(int flags)
{
    if (!PrintServerAnswers())
        throw NaoImprime(QStringLiteral("O sistema de impressão (CUPS) não responde."));
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        throw NaoImprime(QStringLiteral("Nenhuma impressora está instalada."));
    m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    m_printer->setDocName(m_documento);
    Dialogo dialogo(m_printer.get(), flags);
    const TeclasDoDialogo teclas;
    if (dialogo.exec() != QDialog::Accepted)
        throw RuntimeError(ErrDialogCancelled, QStringLiteral("A impressão foi cancelada."));
    // Asked anew: the queue may have stopped while the dialogue stood.
    const QPrinterInfo fila = QPrinterInfo::printerInfo(m_printer->printerName());
    if (m_printer->outputFormat() == QPrinter::NativeFormat &&
        (fila.isNull() || fila.state() == QPrinter::Error))
        throw NaoImprime(
            QStringLiteral("A impressora \"%1\" está desativada.").arg(m_printer->printerName()));
}

void Printer::SetFont(const QString &nome, double tamanho)
{
    m_fonte = nome;
    m_tamanho = tamanho;
}

void Printer::Print(const QString &bloco)
{
    m_paginas.back() += LinhasDe(bloco);
}

void Printer::NewPage()
{
    m_paginas.emplace_back();
}

void Printer::EndDoc()
{
    if (!m_printer)
        throw NaoImprime(QStringLiteral("Nenhuma impressora foi escolhida."));
    if (m_paginas.size() > 1 && m_paginas.back().isEmpty())
        m_paginas.pop_back();
    QPainter pintor;
    if (!pintor.begin(m_printer.get()))
        throw NaoImprime(QStringLiteral("O documento não pôde ser preparado para a impressora \"%1\".")
                             .arg(m_printer->printerName()));
    Pinta(pintor);
    const bool terminou = pintor.end(); // hands it over
    m_paginas = {{}};
    const bool naFila = m_printer->outputFormat() == QPrinter::NativeFormat;
    const QString recusa = naFila ? RefusalOfLastJob() : QString();
    if (!terminou || !recusa.isEmpty())
        throw NaoImprime(QStringLiteral("A impressora \"%1\" não aceitou o documento: %2")
                             .arg(m_printer->printerName(), recusa));
}

void Printer::Pinta(QPainter &pintor) const
{
    pintor.setFont(FonteDe(m_fonte, m_tamanho));
    const QFontMetricsF medidas(pintor.font(), m_printer.get());
    const double altura = pintor.viewport().height();
    bool primeira = true;
    for (const QStringList &pagina : m_paginas) {
        if (!primeira)
            m_printer->newPage();
        primeira = false;
        double topo = 0;
        for (const QString &linha : pagina) {
            if (topo > 0 && topo + medidas.height() > altura) {
                m_printer->newPage();
                topo = 0;
            }
            pintor.drawText(QPointF(0, topo + medidas.ascent()), linha);
            topo += medidas.lineSpacing();
        }
    }
}

} // namespace plataforma
