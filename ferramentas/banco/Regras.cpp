// What a row that comes from outside must be like, so that it is as the program itself would have stored it.
#include "Regras.h"

#include "Codificacao.h"
#include "ConfereAchados.h"
#include "plataforma/basico/Data.h"
#include "plataforma/basico/Numero.h"

#include <algorithm>
#include <array>
#include <QString>

namespace banco {

namespace {

constexpr std::string_view kBranco = " ";

QString EmTexto(std::string_view texto)
{
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

QString Dito(const Campo &campo)
{
    return campo.nulo ? Citado({}) : Citado(EmTexto(campo.texto));
}

bool EData(const std::string &texto)
{
    constexpr std::string_view kForma = "00/00/00";
    if (texto.size() != kForma.size())
        return false;
    for (std::size_t i = 0; i < kForma.size(); ++i) {
        const bool digito = texto[i] >= '0' && texto[i] <= '9';
        if (kForma[i] == '0' ? !digito : texto[i] != kForma[i])
            return false;
    }
    return plataforma::IsDate(EmTexto(texto));
}

} // namespace

RegrasDaTabela::RegrasDaTabela(const Tabela &tabela)
    : m_tabela(tabela),
      m_chave(static_cast<std::size_t>(std::find(tabela.campos.begin(), tabela.campos.end(), tabela.chave) -
                                       tabela.campos.begin()))
{
    const bool log = tabela.chave == "Index";
    for (const std::string_view campo : tabela.campos)
        m_regras.push_back(log ? RegraDoLog(campo) : RegraDoCadastro(tabela, campo));
}

RegrasDaTabela::Regra RegrasDaTabela::RegraDoLog(std::string_view campo)
{
    struct DoCampo {
        std::string_view campo;
        Regra regra;
    };
    static constexpr std::array kRegras{
        DoCampo{"Index", {Especie::Codigo, 10}},       DoCampo{"Codigo", {Especie::CodigoDoLog, 5}},
        DoCampo{"Banco", {Especie::NumeroDeBanco, 3}}, DoCampo{"V_CH", {Especie::Valor, 16}},
        DoCampo{"Favor", {Especie::Texto, 47}},        DoCampo{"Local", {Especie::Texto, 20}},
        DoCampo{"Data", {Especie::Data, 8}},           DoCampo{"NRCH", {Especie::UmBranco, 12}},
        DoCampo{"StCancel", {Especie::Cancelado, 1}}};
    for (const DoCampo &regra : kRegras) {
        if (regra.campo == campo)
            return regra.regra;
    }
    return {Especie::Texto, 80}; // the three lines of comment
}

RegrasDaTabela::Regra RegrasDaTabela::RegraDoCadastro(const Tabela &tabela, std::string_view campo)
{
    const bool favorecido = tabela.nome == "Favorecido";
    const bool cidade = tabela.nome == "Cidade";
    if (campo == tabela.chave)
        return {Especie::Codigo, favorecido || cidade ? 5U : 3U};
    if (campo == "Nome")
        return {Especie::Texto, favorecido ? 47U : cidade ? 20U : 30U};
    return {Especie::Posicao, 3};
}

QStringList RegrasDaTabela::Aplica(Linha &linha)
{
    QStringList faltas;
    // The key first: another field may depend on it.
    const QString daChave = Confere(m_regras[m_chave], linha[m_chave], linha);
    for (std::size_t i = 0; i < linha.size(); ++i) {
        const QString falta = i == m_chave ? daChave : Confere(m_regras[i], linha[i], linha);
        if (!falta.isEmpty())
            faltas.append(QStringLiteral("%1 %2").arg(EmTexto(m_tabela.campos[i]), falta));
    }
    return faltas;
}

// Gives leading zeros back to a number that is too short. @return whether the field is that many digits now
bool RegrasDaTabela::Completa(Campo &campo, std::size_t largura)
{
    if (campo.texto.empty() || campo.texto.size() > largura || !SoDigitos(campo.texto))
        return false;
    if (campo.texto.size() < largura) {
        campo.texto.insert(0, largura - campo.texto.size(), '0');
        ++m_completados;
    }
    return true;
}

QString RegrasDaTabela::Confere(const Regra &regra, Campo &campo, const Linha &linha)
{
    switch (regra.especie) {
    case Especie::Codigo:
        return ConfereCodigo(regra, campo);
    case Especie::CodigoDoLog:
        return ConfereCodigoDoLog(regra, campo, linha);
    case Especie::Posicao:
        return ConferePosicao(regra, campo);
    case Especie::NumeroDeBanco:
        if (Completa(campo, regra.largura))
            return {};
        break;
    case Especie::Data:
        return EData(campo.texto) ? QString()
                                  : QStringLiteral("%1 não é uma data na forma dd/mm/aa").arg(Dito(campo));
    case Especie::Valor:
        if (!plataforma::IsNumeric(EmTexto(campo.texto)))
            return QStringLiteral("%1 não é um valor").arg(Dito(campo));
        break;
    case Especie::UmBranco:
    case Especie::Cancelado:
        if (campo.texto.empty())
            campo = {std::string(kBranco), false};
        if (regra.especie == Especie::Cancelado && campo.texto != kBranco && campo.texto != "C")
            return QStringLiteral("%1 não é nem um branco nem \"C\"").arg(Dito(campo));
        break;
    case Especie::Texto:
        break;
    }
    const std::size_t comprimento = ComprimentoNaCaixa(campo.texto);
    if (comprimento <= regra.largura)
        return {};
    return QStringLiteral("%1 tem %2 caracteres, e cabem %3")
        .arg(Dito(campo), QString::number(comprimento), QString::number(regra.largura));
}

QString RegrasDaTabela::ConfereCodigo(const Regra &regra, Campo &campo)
{
    if (campo.texto.empty())
        return QStringLiteral("está vazio, e sem ele o registro não pode ser achado");
    if (Completa(campo, regra.largura))
        return {};
    return QStringLiteral("%1 não é um número de até %2 algarismos")
        .arg(Dito(campo), QString::number(regra.largura));
}

QString RegrasDaTabela::ConfereCodigoDoLog(const Regra &regra, Campo &campo, const Linha &linha)
{
    const std::string &index = linha[m_chave].texto;
    // A wrong key was told already.
    if (index.size() != m_regras[m_chave].largura || !SoDigitos(index))
        return {};
    const std::string ultimos = index.substr(index.size() - regra.largura);
    if (Completa(campo, regra.largura) && campo.texto == ultimos)
        return {};
    return QStringLiteral("%1 não são os últimos algarismos do Index, %2").arg(Dito(campo), EmTexto(ultimos));
}

QString RegrasDaTabela::ConferePosicao(const Regra &regra, Campo &campo)
{
    if (campo.texto.empty() || Completa(campo, regra.largura))
        return {};
    return QStringLiteral("%1 não é um número inteiro de até %2 algarismos")
        .arg(Dito(campo), QString::number(regra.largura));
}

} // namespace banco
