// The thirteen numbers that place a bank's printed fields, as the store and QX70.INI hold them.
#include "Leiaute.h"

#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"

#include <QRegularExpression>
#include <QStringList>

namespace banco {

std::string CampoDoLeiaute(int numero)
{
    return plataforma::Format(static_cast<double>(numero), QStringLiteral("000")).toStdString();
}

QString TextoDoFormato(const Leiaute &leiaute, const QString &nome)
{
    QStringList numeros;
    for (const int numero : leiaute)
        numeros.append(plataforma::Format(static_cast<double>(numero), QStringLiteral("00")));
    return numeros.join(QLatin1Char(',')) + QStringLiteral("    ; ") + plataforma::Left(nome, 20);
}

TextoDoLeiaute LeFormato(const QString &texto)
{
    const qsizetype fim = texto.indexOf(QLatin1Char(';'));
    QStringList numeros = texto.left(fim).split(QLatin1Char(','));
    for (QString &numero : numeros)
        numero = plataforma::Trim(numero);
    // One blank stands behind the semicolon.
    return {numeros, fim < 0 ? QString() : plataforma::RTrim(texto.mid(fim + 2))};
}

TextoDoLeiaute LeChequeTransf(const QString &texto)
{
    constexpr int kNumeros = 14;
    constexpr int kInicioDoNome = 62;
    static const QRegularExpression kTresAlgarismos(QStringLiteral("\\A[0-9]{3}\\z"));
    TextoDoLeiaute lido;
    for (int k = 0; k < kNumeros; ++k) {
        lido.numeros.append(plataforma::Mid(texto, 1 + 4 * k, 3));
        if (!kTresAlgarismos.match(lido.numeros.last()).hasMatch())
            return {};
    }
    lido.nome = plataforma::RTrim(plataforma::Mid(texto, kInicioDoNome));
    return lido;
}

bool MesmoNumero(const QString &noArquivo, const QString &naTabela)
{
    return plataforma::IsNumeric(noArquivo) && plataforma::Val(noArquivo) == plataforma::Val(naTabela);
}

bool MesmoNome(const QString &noArquivo, const QString &naTabela)
{
    return noArquivo == naTabela || noArquivo == plataforma::FromAnsi(plataforma::ToAnsi(naTabela));
}

} // namespace banco
