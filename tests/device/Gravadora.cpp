// A Device Library for tests: it prints nothing, writes each call to a file and answers from a script.
//
// QX70_GRAVADORA_SAIDA names the file of the calls, one a line: FormataTX("S\xC6o",3,0,0,0,0).
// Bytes of a text outside printable ASCII, quotes and backslashes are escaped.
// QX70_GRAVADORA_ROTEIRO names the script, one order a line:
//   resultado ImprimeCheque 1 5 1    answers of the calls of an operation in turn; the last one stays
//   reescreve IniciaPorta COM9       text that the operation leaves in its first buffer
//   extenso um real                  bytes that MontaValor leaves in Extenso.ret
// Without an order an operation answers 1, MontaValor 0, and buffers and files stay.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::string CaminhoDe(const char *variavel)
{
    const char *valor = std::getenv(variavel);
    return valor ? valor : "";
}

std::vector<std::string> LinhasDe(const std::string &caminho)
{
    std::vector<std::string> linhas;
    std::ifstream arquivo(caminho, std::ios::binary);
    for (std::string linha; std::getline(arquivo, linha);)
        linhas.push_back(linha);
    return linhas;
}

std::string Escreve(const char *texto)
{
    std::string escrito = "\"";
    for (const char *p = texto; *p != '\0'; ++p) {
        const auto byte = static_cast<unsigned char>(*p);
        char forma[8];
        if (byte == '"' || byte == '\\')
            std::snprintf(forma, sizeof forma, "\\%c", byte);
        else
            std::snprintf(forma, sizeof forma, byte < 0x20 || byte > 0x7E ? "\\x%02X" : "%c", byte);
        escrito += forma;
    }
    return escrito + "\"";
}

std::string Escreve(std::int16_t numero)
{
    return std::to_string(numero);
}

std::size_t ChamadasAnteriores(const std::string &operacao)
{
    std::size_t vezes = 0;
    for (const std::string &linha : LinhasDe(CaminhoDe("QX70_GRAVADORA_SAIDA")))
        vezes += linha.rfind(operacao + "(", 0) == 0 ? 1 : 0;
    return vezes;
}

/// What stands in the script behind "<order> <operation> ".
bool Ordem(const std::string &inicio, std::string &resto)
{
    for (const std::string &linha : LinhasDe(CaminhoDe("QX70_GRAVADORA_ROTEIRO"))) {
        if (linha.rfind(inicio + " ", 0) == 0) {
            resto = linha.substr(inicio.size() + 1);
            return true;
        }
    }
    return false;
}

std::int16_t Resultado(const std::string &operacao, std::size_t vez, std::int16_t usual)
{
    std::string ordem;
    if (!Ordem("resultado " + operacao, ordem))
        return usual;
    std::istringstream numeros(ordem);
    int numero = usual;
    for (std::size_t i = 0; i <= vez && numeros >> numero; ++i) {
    }
    return static_cast<std::int16_t>(numero);
}

void Reescreve(const std::string &operacao, char *buffer)
{
    std::string texto;
    if (Ordem("reescreve " + operacao, texto))
        std::memcpy(buffer, texto.c_str(), texto.size() + 1);
}

template <typename... Argumentos> std::int16_t Grava(const char *operacao, Argumentos... argumentos)
{
    const std::size_t vez = ChamadasAnteriores(operacao);
    std::string lista;
    ((lista += (lista.empty() ? "" : ",") + Escreve(argumentos)), ...);
    std::ofstream(CaminhoDe("QX70_GRAVADORA_SAIDA"), std::ios::binary | std::ios::app)
        << operacao << '(' << lista << ")\n";
    return Resultado(operacao, vez, std::strcmp(operacao, "MontaValor") == 0 ? 0 : 1);
}

void GravaExtenso()
{
    std::string palavras;
    if (Ordem("extenso", palavras))
        std::ofstream("Extenso.ret", std::ios::binary | std::ios::trunc) << palavras;
}

} // namespace

extern "C" {

std::int16_t IniciaPorta(char *porta)
{
    const std::int16_t resultado = Grava("IniciaPorta", porta);
    Reescreve("IniciaPorta", porta);
    return resultado;
}

std::int16_t FechaPorta()
{
    return Grava("FechaPorta");
}

std::int16_t TravaDoc(std::int16_t trava)
{
    return Grava("TravaDoc", trava);
}

std::int16_t FormataTX(char *texto, std::int16_t modo, std::int16_t f3, std::int16_t f4, std::int16_t f5,
                       std::int16_t f6)
{
    const std::int16_t resultado = Grava("FormataTX", texto, modo, f3, f4, f5, f6);
    Reescreve("FormataTX", texto);
    return resultado;
}

std::int16_t KorvalenTX(char *dados)
{
    return Grava("KorvalenTX", dados);
}

std::int16_t ComandoTX(char *comando, std::int16_t tamanho)
{
    return Grava("ComandoTX", comando, tamanho);
}

std::int16_t ImprimeCheque(char *banco, char *valor, char *favorecido, char *cidade, char *data, char *extra)
{
    return Grava("ImprimeCheque", banco, valor, favorecido, cidade, data, extra);
}

std::int16_t ImprimeCampoX(std::int16_t campo, std::int16_t linha, std::int16_t coluna, char *texto)
{
    return Grava("ImprimeCampoX", campo, linha, coluna, texto);
}

std::int16_t IncluiBanco(char *codigo, char *posicoes)
{
    return Grava("IncluiBanco", codigo, posicoes);
}

std::int16_t IncluiFavorecido(char *codigo, char *nome)
{
    return Grava("IncluiFavorecido", codigo, nome);
}

std::int16_t ExcluiFavorecido(char *codigo)
{
    return Grava("ExcluiFavorecido", codigo);
}

std::int16_t CancelaRel(char *alvo)
{
    return Grava("CancelaRel", alvo);
}

#ifndef GRAVADORA_INCOMPLETA
std::int16_t AlteraMoeda(char *singular, char *plural)
{
    return Grava("AlteraMoeda", singular, plural);
}
#endif

std::int16_t ZeraConfig()
{
    return Grava("ZeraConfig");
}

std::int16_t MontaValor(char *valor, char *singular, char *plural)
{
    const std::int16_t resultado = Grava("MontaValor", valor, singular, plural);
    GravaExtenso();
    return resultado;
}

} // extern "C"
