// See RegrasDaEntrada.h.
#include "cheques/RegrasDaEntrada.h"

#include "nucleo/DatasDeEntrada.h"
#include "plataforma/basico/Data.h"
#include "plataforma/basico/Formato.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"

namespace cheques {

using namespace plataforma;

namespace {

const QString kPadraoData = QStringLiteral("@@/@@/@@");

struct Limite {
    int indice, limite, corte;
};
// On purpose: a city over 20 characters is cut to 15.
constexpr Limite kLimites[] = {{CampoBanco, 3, 3},
                               {CampoValor, 16, 16},
                               {CampoFavorecido, 47, 47},
                               {CampoCidade, 20, 15},
                               {CampoNumero, 12, 12}};

const Limite *LimiteDe(int indice)
{
    for (const Limite &limite : kLimites)
        if (limite.indice == indice)
            return &limite;
    return nullptr;
}

// A date on the screen back to "ddmmyy" when its bars stand where they do after the entry.
QString SemBarras(const QString &data)
{
    if (Len(data) > 6 && Mid(data, 6, 1) == QStringLiteral("/"))
        return Left(data, 2) + Mid(data, 4, 2) + Right(data, 2);
    return data;
}

} // namespace

int LimiteDoCampo(int indice)
{
    const Limite *limite = LimiteDe(indice);
    return limite ? limite->limite : 0;
}

std::optional<QString> CortaCampo(int indice, const QString &texto)
{
    const Limite *limite = LimiteDe(indice);
    if (!limite || Len(texto) <= limite->limite)
        return std::nullopt;
    return Left(texto, limite->corte);
}

std::optional<QString> CortaLinha(const QString &texto)
{
    if (Len(texto) <= kLimiteDaLinha)
        return std::nullopt;
    return Left(texto, kLimiteDaLinha);
}

QString BancoAoSair(const QString &texto)
{
    const double numero = Val(texto);
    if (numero <= 0)
        return {};
    return Format(numero, QStringLiteral("000"));
}

std::optional<QString> ValorAoSair(const QString &texto)
{
    if (!IsNumeric(texto))
        return std::nullopt;
    return Format(CDbl(texto), QStringLiteral("###,##0.00"));
}

DataAoSair DataDoChequeAoSair(const QString &texto, const QDate &hoje)
{
    DataAoSair saida;
    saida.hoje = texto.isEmpty();
    const QString campo = saida.hoje ? nucleo::HojeParaCampo(hoje) : nucleo::AplicaRegraDasBarras(texto);
    saida.valida = nucleo::DataValida(campo);
    saida.texto = saida.valida ? Format(campo, kPadraoData) : campo;
    return saida;
}

std::optional<Recusa> VerificaCamposDoCheque(const TextosDoCheque &cheque, bool numeroObrigatorio)
{
    if (cheque.banco.isEmpty())
        return Recusa{QStringLiteral("O número do banco não pode ser vazio"), CampoBanco};
    if (cheque.valor == QStringLiteral("0,00"))
        return Recusa{QStringLiteral("O valor não pode ser igual a zero (0,00)."), CampoValor};
    if (cheque.valor.isEmpty())
        return Recusa{QStringLiteral("O valor não pode ser vazio"), CampoValor};
    // On purpose: the bank is judged here, though the words and the focus speak of the value.
    if (Val(cheque.banco) <= 0)
        return Recusa{QStringLiteral("Valor inválido"), CampoValor};
    if (cheque.cidade.isEmpty())
        return Recusa{QStringLiteral("A cidade não pode ser vazia"), CampoCidade};
    if (cheque.data.isEmpty())
        return Recusa{QStringLiteral("A data não pode ser vazia"), CampoData};
    if (!nucleo::DataValida(SemBarras(cheque.data)))
        return Recusa{QString(), CampoData};
    if (numeroObrigatorio && cheque.numero.isEmpty())
        return Recusa{QString(), CampoNumero};
    return std::nullopt;
}

int ProximoCampo(int indice)
{
    switch (indice) {
    case CampoData:
        return CampoNumero;
    case CampoNumero:
        return kVaiParaImprimir;
    default:
        return indice + 1;
    }
}

QString ChaveDoCampo(int indice)
{
    switch (indice) {
    case CampoBanco:
        return QStringLiteral("NumBanco");
    case CampoValor:
        return QStringLiteral("Valor");
    case CampoFavorecido:
        return QStringLiteral("Favorecido");
    case CampoCidade:
        return QStringLiteral("Cidade");
    default:
        return {};
    }
}

QString ChaveDoExtra(int indice)
{
    return QStringLiteral("Campo") + Format(indice, QStringLiteral("00"));
}

QString ChaveDoVerso(int indice)
{
    return QStringLiteral("Linha") + Format(indice, QStringLiteral("00"));
}

} // namespace cheques
