// What a check found: defects and notices, kept by kind, so that a thousand of one kind do not hide another.
#include "ConfereAchados.h"

#include <algorithm>

namespace banco {

bool SoDigitos(std::string_view texto)
{
    return std::all_of(texto.begin(), texto.end(), [](char c) { return c >= '0' && c <= '9'; });
}

namespace {

// What does not keep the program from working, or is the operator's right.
bool EAviso(Tipo tipo)
{
    switch (tipo) {
    case Tipo::AMais:
    case Tipo::SemIndice:
    case Tipo::NaoConferida:
    case Tipo::NumerosPerdidos:
    case Tipo::Configuracoes:
    case Tipo::ChaveDesligada:
    case Tipo::ChaveSemBanco:
        return true;
    default:
        return false;
    }
}

} // namespace

QStringList Achados::Linhas() const
{
    QStringList linhas;
    for (const bool avisos : {false, true}) {
        for (std::size_t i = 0; i < m_achados.size(); ++i)
            if (EAviso(static_cast<Tipo>(i)) == avisos)
                linhas +=
                    LinhasDe(m_achados[i], avisos ? QStringLiteral("Aviso: ") : QStringLiteral("Defeito: "));
    }
    return linhas;
}

QStringList Achados::LinhasDe(const Achado &achado, const QString &comeco)
{
    QStringList linhas;
    for (const QString &linha : achado.linhas)
        linhas.append(comeco + linha);
    if (const qint64 faltam = achado.quantos - achado.linhas.size(); faltam > 0)
        linhas.append(comeco + QStringLiteral("mais %1 como os de cima; com --tudo saem todos.").arg(faltam));
    return linhas;
}

qint64 Achados::Conta(bool avisos) const
{
    qint64 quantos = 0;
    for (std::size_t i = 0; i < m_achados.size(); ++i)
        quantos += EAviso(static_cast<Tipo>(i)) == avisos ? m_achados[i].quantos : 0;
    return quantos;
}

QString Quantos(qint64 numero, const char *um, const char *varios)
{
    return QStringLiteral("%1 %2").arg(QString::number(numero), QString::fromUtf8(numero == 1 ? um : varios));
}

QString Citado(const QString &valor)
{
    constexpr qsizetype kCabem = 60;
    if (valor.isNull())
        return QStringLiteral("(sem valor)");
    QString curto = valor.left(kCabem).replace(QLatin1Char('\n'), QLatin1Char(' '));
    curto.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return QLatin1Char('"') + curto +
           (valor.size() > kCabem ? QStringLiteral("...\"") : QStringLiteral("\""));
}

} // namespace banco
