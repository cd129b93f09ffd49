// The amount in words as a file; see MontaValor.h.
#include "qx7032/MontaValor.h"

#include "qx7032/Extenso.h"
#include "qx7032/resultados.h"
#include "qx7032/Windows1252.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace qx7032 {

namespace {

bool EhDigito(char c)
{
    return c >= '0' && c <= '9';
}

bool EscreveTudo(int descritor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t escritos = write(descritor, bytes.data(), bytes.size());
        if (escritos < 0 && errno != EINTR)
            return false;
        bytes.remove_prefix(escritos > 0 ? static_cast<std::size_t>(escritos) : 0);
    }
    return true;
}

// Written beside its place and moved there whole, so that nobody reads half of it.
bool GravaArquivo(std::string_view conteudo)
{
    const std::string provisorio = std::string(kArquivoDoExtenso) + "." + std::to_string(getpid());
    const int descritor =
        open(provisorio.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (descritor < 0)
        return false;
    const bool escrito = EscreveTudo(descritor, conteudo);
    const bool fechado = close(descritor) == 0;
    if (escrito && fechado && std::rename(provisorio.c_str(), kArquivoDoExtenso) == 0)
        return true;
    unlink(provisorio.c_str());
    return false;
}

} // namespace

std::optional<std::int64_t> LeCentavos(std::string_view valor)
{
    while (!valor.empty() && valor.front() == ' ')
        valor.remove_prefix(1);
    while (!valor.empty() && valor.back() == ' ')
        valor.remove_suffix(1);
    if (valor.size() < 4 || valor[valor.size() - 3] != ',')
        return std::nullopt;
    std::string digitos(valor.substr(0, valor.size() - 3));
    digitos += valor.substr(valor.size() - 2);
    if (!std::all_of(digitos.begin(), digitos.end(), EhDigito))
        return std::nullopt;
    std::int64_t centavos = 0;
    const auto lido = std::from_chars(digitos.data(), digitos.data() + digitos.size(), centavos);
    return lido.ec == std::errc() && centavos <= kCentavosMaximos ? std::optional(centavos) : std::nullopt;
}

int GravaExtenso(std::string_view valor, std::string_view singular, std::string_view plural)
{
    const auto centavos = LeCentavos(valor);
    if (!centavos || singular.empty() || plural.empty())
        return QX7032_VALOR_INVALIDO;
    const std::string palavras = PorExtenso(*centavos, Utf8De1252(singular), Utf8De1252(plural));
    if (palavras.empty()) // the number data could not be opened
        return QX7032_ARQUIVO_NAO_ABRIU;
    return GravaArquivo(Texto1252De(palavras) + kFecho) ? QX7032_VALOR_MONTADO : QX7032_ARQUIVO_NAO_ABRIU;
}

} // namespace qx7032
