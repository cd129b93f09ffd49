// See LinhaDoLog.h.
#include "reports/LinhaDoLog.h"

#include "plataforma/basico/Data.h"
#include "plataforma/basico/Texto.h"
#include "reports/Quantia.h"

#include <algorithm>
#include <initializer_list>
#include <QStringView>

namespace reports {

namespace {

constexpr qsizetype kTamanhoDaChave = 10;
constexpr QStringView kDivisa = u" | ";

/// A piece of the line. One wider than its column is shown whole and shifts what follows.
struct Coluna {
    QStringView texto;
    qsizetype largura = 0;
    bool aDireita = false;

    [[nodiscard]] qsizetype Folga() const { return std::max<qsizetype>(0, largura - texto.size()); }
};

/// The pieces behind one another, in a text that is made once.
QString Junta(std::initializer_list<Coluna> colunas)
{
    qsizetype tamanho = 0;
    for (const Coluna &coluna : colunas)
        tamanho += coluna.texto.size() + coluna.Folga();
    QString linha(tamanho, Qt::Uninitialized);
    QChar *c = linha.data();
    for (const Coluna &coluna : colunas) {
        if (coluna.aDireita)
            c = std::fill_n(c, coluna.Folga(), QLatin1Char(' '));
        c = std::copy(coluna.texto.begin(), coluna.texto.end(), c);
        if (!coluna.aDireita)
            c = std::fill_n(c, coluna.Folga(), QLatin1Char(' '));
    }
    return linha;
}

QString OuBranco(const QString &texto)
{
    return texto.isEmpty() ? QStringLiteral(" ") : texto;
}

} // namespace

QString LinhaDoLog(const ChequeDoLog &cheque)
{
    return MontaLinhaDoLog(
        {cheque.stCancel, cheque.nrch, cheque.banco, cheque.vCh, cheque.data, cheque.favor, cheque.index});
}

QString MontaLinhaDoLog(const CamposDaLinha &campos)
{
    const QString valor = EscreveQuantia(LeQuantia(campos.vCh));
    return Junta({{campos.stCancel == kCancelado ? QStringView(u"C |") : QStringView(u"  |")},
                  {campos.nrch, 12, true},
                  {kDivisa},
                  {campos.banco},
                  {kDivisa},
                  {valor, 16, true},
                  {kDivisa},
                  {campos.data, 8},
                  {kDivisa},
                  {campos.favor, 74},
                  {campos.index, kTamanhoDaChave, true}});
}

bool DataIlegivel(const ChequeDoLog &cheque)
{
    return !plataforma::Trim(cheque.data).isEmpty() && !plataforma::IsDate(cheque.data);
}

bool LinhaCancelada(const QString &linha)
{
    return linha.startsWith(QLatin1Char('C'));
}

QString ChaveDaLinha(const QString &linha)
{
    return plataforma::Trim(plataforma::Right(linha, kTamanhoDaChave));
}

double ValorDaLinha(const QString &linha)
{
    return LeQuantia(QStringView(linha).mid(23, 17));
}

QString TextoDoValor(const QString &vCh)
{
    return EscreveQuantia(LeQuantia(vCh));
}

QString TextoDoTotal(double total)
{
    return EscreveQuantia(total);
}

std::array<QString, 11> DetalheDoLog(const ChequeDoLog &cheque, const RestoDoCheque &resto,
                                     const QString &nomeDoBanco)
{
    return {cheque.banco + QStringLiteral(" - ") + nomeDoBanco,
            TextoDoValor(cheque.vCh),
            cheque.favor,
            OuBranco(resto.local),
            OuBranco(cheque.data),
            QString(),
            OuBranco(cheque.nrch),
            cheque.stCancel == kCancelado ? kCancelado : QStringLiteral(" "),
            resto.comentario,
            resto.comentario1,
            resto.comentario2};
}

} // namespace reports
