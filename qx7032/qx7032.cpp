// The 15 operations as C functions. Arguments are checked here; what goes over the line is in Enlace.h.
#include "qx7032/qx7032.h"

#include "qx7032/Argumentos.h"
#include "qx7032/Enlace.h"
#include "qx7032/MontaValor.h"
#include "qx7032/Quadro.h"
#include "qx7032/resultados.h"

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

using qx7032::EscritorDeArgumentos;

namespace {

struct CampoX {
    std::int16_t campo;
    std::int16_t linha;
    std::int16_t coluna;
    std::string texto;
};

struct Biblioteca {
    qx7032::Enlace enlace;
    std::vector<CampoX> campos; // kept for the next cheque
};

// Made at first use: loading the library costs nothing.
Biblioteca &A()
{
    static Biblioteca biblioteca;
    return biblioteca;
}

// Runs an operation; no exception leaves the library.
template <typename Operacao> std::int16_t Protege(int falha, Operacao operacao) noexcept
{
    try {
        return static_cast<std::int16_t>(operacao());
    } catch (...) {
        return static_cast<std::int16_t>(falha);
    }
}

// The argument list of an order with texts only; nothing when one of them is null.
std::optional<EscritorDeArgumentos> Lista(std::initializer_list<const char *> textos)
{
    EscritorDeArgumentos argumentos;
    for (const char *texto : textos) {
        if (texto == nullptr)
            return std::nullopt;
        argumentos.Texto(texto);
    }
    return argumentos;
}

int Ordena(char tipo, std::initializer_list<const char *> textos)
{
    const auto argumentos = Lista(textos);
    return argumentos ? A().enlace.Ordena(tipo, *argumentos) : int{QX7032_ARGUMENTO_INVALIDO};
}

std::int16_t OperaTextos(char tipo, std::initializer_list<const char *> textos) noexcept
{
    return Protege(QX7032_OUTRA_FALHA, [&] { return Ordena(tipo, textos); });
}

// A text longer than a frame goes in several, cut between lines; the paper is one when the document is held.
int FormataPartes(const char *texto, std::initializer_list<std::int16_t> numeros)
{
    const std::size_t limite = qx7032::kCargaMaxima - 2 * (1 + numeros.size());
    for (const std::string_view parte : qx7032::ParteTexto(texto, limite)) {
        EscritorDeArgumentos argumentos;
        argumentos.Texto(parte);
        for (const std::int16_t numero : numeros)
            argumentos.Numero(numero);
        const int resultado = A().enlace.Ordena('F', argumentos);
        if (resultado != QX7032_SUCESSO)
            return resultado;
    }
    return QX7032_SUCESSO;
}

int EnviaCampos(const std::vector<CampoX> &campos)
{
    for (const CampoX &campo : campos) {
        EscritorDeArgumentos argumentos;
        argumentos.Numero(campo.campo).Numero(campo.linha).Numero(campo.coluna).Texto(campo.texto);
        const int resultado = A().enlace.Ordena('X', argumentos);
        if (resultado != QX7032_SUCESSO)
            return resultado;
    }
    return QX7032_SUCESSO;
}

int GuardaCampo(CampoX campo)
{
    if (campo.texto.size() > qx7032::kCargaMaxima)
        return QX7032_ARGUMENTO_INVALIDO;
    auto &campos = A().campos;
    const auto mesmo = std::find_if(campos.begin(), campos.end(),
                                    [&](const CampoX &guardado) { return guardado.campo == campo.campo; });
    if (mesmo == campos.end())
        campos.push_back(std::move(campo));
    else
        *mesmo = std::move(campo);
    return QX7032_SUCESSO;
}

// Never longer than what came, and only bytes that differ are written.
void Reescreve(char *porta, const std::string &nome)
{
    if (nome != porta)
        std::memcpy(porta, nome.c_str(), nome.size() + 1);
}

} // namespace

extern "C" {

std::int16_t IniciaPorta(char *porta)
{
    return Protege(QX7032_PORTA_NAO_ABRIU, [&] {
        const std::string nome = qx7032::NormalizaPorta(porta == nullptr ? "" : porta);
        if (porta != nullptr)
            Reescreve(porta, nome);
        return A().enlace.Abre(nome) == QX7032_SUCESSO ? QX7032_SUCESSO : QX7032_PORTA_NAO_ABRIU;
    });
}

std::int16_t FechaPorta(void)
{
    return Protege(QX7032_OUTRA_FALHA, [] { return A().enlace.Fecha(); });
}

std::int16_t TravaDoc(std::int16_t trava)
{
    return Protege(QX7032_OUTRA_FALHA,
                   [&] { return A().enlace.Ordena('T', EscritorDeArgumentos().Numero(trava)); });
}

std::int16_t FormataTX(char *texto, std::int16_t modo, std::int16_t f3, std::int16_t f4, std::int16_t f5,
                       std::int16_t f6)
{
    return Protege(QX7032_OUTRA_FALHA, [&] {
        return texto == nullptr ? int{QX7032_ARGUMENTO_INVALIDO}
                                : FormataPartes(texto, {modo, f3, f4, f5, f6});
    });
}

std::int16_t KorvalenTX(char *dados)
{
    return Protege(QX7032_OUTRA_FALHA, [&] {
        return dados == nullptr ? int{QX7032_ARGUMENTO_INVALIDO} : A().enlace.EnviaBruto(dados);
    });
}

std::int16_t ComandoTX(char *comando, std::int16_t tamanho)
{
    return Protege(QX7032_OUTRA_FALHA, [&]() -> int {
        const std::size_t pedidos = tamanho < 0 ? 0 : static_cast<std::size_t>(tamanho);
        if (comando == nullptr || tamanho < 0 || strnlen(comando, pedidos) != pedidos)
            return QX7032_ARGUMENTO_INVALIDO;
        return A().enlace.EnviaBruto({comando, pedidos});
    });
}

std::int16_t ImprimeCheque(char *banco, char *valor, char *favorecido, char *cidade, char *data, char *extra)
{
    return Protege(QX7032_OUTRA_FALHA, [&] {
        // Forgotten whatever the result: the fields of a cheque that failed must not come out on the next
        // one.
        const std::vector<CampoX> campos = std::exchange(A().campos, {});
        const auto argumentos = Lista({banco, valor, favorecido, cidade, data, extra});
        if (!argumentos || !argumentos->Cabe())
            return int{QX7032_ARGUMENTO_INVALIDO};
        const int resultado = EnviaCampos(campos);
        return resultado == QX7032_SUCESSO ? A().enlace.Ordena('C', *argumentos) : resultado;
    });
}

std::int16_t ImprimeCampoX(std::int16_t campo, std::int16_t linha, std::int16_t coluna, char *texto)
{
    return Protege(QX7032_OUTRA_FALHA, [&] {
        return texto == nullptr ? int{QX7032_ARGUMENTO_INVALIDO} : GuardaCampo({campo, linha, coluna, texto});
    });
}

std::int16_t IncluiBanco(char *codigo, char *posicoes)
{
    return OperaTextos('B', {codigo, posicoes});
}

std::int16_t IncluiFavorecido(char *codigo, char *nome)
{
    return OperaTextos('I', {codigo, nome});
}

std::int16_t ExcluiFavorecido(char *codigo)
{
    return OperaTextos('E', {codigo});
}

std::int16_t CancelaRel(char *alvo)
{
    return OperaTextos('R', {alvo});
}

std::int16_t AlteraMoeda(char *singular, char *plural)
{
    return OperaTextos('M', {singular, plural});
}

std::int16_t ZeraConfig(void)
{
    return OperaTextos('Z', {});
}

std::int16_t MontaValor(char *valor, char *singular, char *plural)
{
    return Protege(QX7032_VALOR_INVALIDO, [&] {
        const bool algumNulo = valor == nullptr || singular == nullptr || plural == nullptr;
        return algumNulo ? int{QX7032_VALOR_INVALIDO} : qx7032::GravaExtenso(valor, singular, plural);
    });
}

} // extern "C"
