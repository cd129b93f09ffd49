// The functions, the Like operator and the text order of the query dialect, made known to the engine.
#include "Funcoes.h"

#include "Ordem.h"
#include "plataforma/basico/Data.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/RuntimeError.h"
#include "plataforma/basico/Texto.h"
#include <span>
#include <sqlite3.h>

namespace plataforma::jet {

namespace {

using Argumentos = std::span<sqlite3_value *const>;

std::string_view BytesDe(sqlite3_value *valor)
{
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_value_text(valor));
    return {bytes, bytes ? static_cast<std::size_t>(sqlite3_value_bytes(valor)) : 0};
}

QString TextoDe(sqlite3_value *valor)
{
    return TextoGravado(BytesDe(valor));
}

qsizetype InteiroDe(sqlite3_value *valor)
{
    return static_cast<qsizetype>(sqlite3_value_int64(valor));
}

void DaTexto(sqlite3_context *contexto, const QString &texto)
{
    const QByteArray utf8 = texto.toUtf8();
    sqlite3_result_text(contexto, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
}

// Every row of a search comes through here.
void FazLeft(sqlite3_context *c, Argumentos a)
{
    const qsizetype n = InteiroDe(a[1]);
    const auto inicio = n < 0 ? std::nullopt : InicioGravado(BytesDe(a[0]), static_cast<std::size_t>(n));
    if (!inicio)
        return DaTexto(c, Left(TextoDe(a[0]), n));
    sqlite3_result_text(c, inicio->data(), static_cast<int>(inicio->size()), SQLITE_TRANSIENT);
}
void FazRight(sqlite3_context *c, Argumentos a)
{
    DaTexto(c, Right(TextoDe(a[0]), InteiroDe(a[1])));
}
void FazTrim(sqlite3_context *c, Argumentos a)
{
    DaTexto(c, Trim(TextoDe(a[0])));
}
void FazLen(sqlite3_context *c, Argumentos a)
{
    sqlite3_result_int64(c, Len(TextoDe(a[0])));
}
void FazVal(sqlite3_context *c, Argumentos a)
{
    sqlite3_result_double(c, Val(TextoDe(a[0])));
}

bool Combina(const PadraoLike &padrao, sqlite3_value *valor)
{
    const std::optional<bool> peloInicio = padrao.AceitaBytes(BytesDe(valor));
    return peloInicio ? *peloInicio : padrao.Aceita(TextoDe(valor));
}

// The engine keeps the pattern read from one row to the next where it is the same for all rows.
void FazLike(sqlite3_context *c, Argumentos a)
{
    constexpr int PADRAO = 1;
    if (const auto *lido = static_cast<const PadraoLike *>(sqlite3_get_auxdata(c, PADRAO)))
        return sqlite3_result_int(c, Combina(*lido, a[0]));
    auto padrao = std::make_unique<PadraoLike>(TextoDe(a[PADRAO]));
    sqlite3_result_int(c, Combina(*padrao, a[0]));
    sqlite3_set_auxdata(c, PADRAO, padrao.release(), [](void *p) { delete static_cast<PadraoLike *>(p); });
}

void FazMid(sqlite3_context *c, Argumentos a)
{
    const QString texto = TextoDe(a[0]);
    DaTexto(c, a.size() == 2 ? Mid(texto, InteiroDe(a[1])) : Mid(texto, InteiroDe(a[1]), InteiroDe(a[2])));
}

void FazCDbl(sqlite3_context *c, Argumentos a)
{
    const QString texto = TextoDe(a[0]);
    if (IsNumeric(texto))
        sqlite3_result_double(c, CDbl(texto));
}

void FazCVDate(sqlite3_context *c, Argumentos a)
{
    const QString texto = TextoDe(a[0]);
    if (IsDate(texto))
        sqlite3_result_int64(c, CVDate(texto).toJulianDay());
}

// The result is NULL unless the function sets another.
template <void (*funcao)(sqlite3_context *, Argumentos)>
void Chama(sqlite3_context *contexto, int quantos, sqlite3_value **valores) noexcept
{
    const Argumentos argumentos(valores, static_cast<std::size_t>(quantos));
    for (sqlite3_value *valor : argumentos) {
        if (sqlite3_value_type(valor) == SQLITE_NULL)
            return;
    }
    try {
        funcao(contexto, argumentos);
    } catch (const RuntimeError &erro) {
        sqlite3_result_error(contexto, erro.what(), -1);
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(contexto);
    }
}

int ComparaNoMotor(void *, int tamanhoA, const void *a, int tamanhoB, const void *b) noexcept
{
    return ComparaPortugues({static_cast<const char *>(a), static_cast<std::size_t>(tamanhoA)},
                            {static_cast<const char *>(b), static_cast<std::size_t>(tamanhoB)});
}

struct Funcao {
    const char *nome;
    int argumentos;
    void (*chamada)(sqlite3_context *, int, sqlite3_value **) noexcept;
};

constexpr Funcao FUNCOES[] = {
    {"qx_left", 2, Chama<FazLeft>}, {"qx_right", 2, Chama<FazRight>}, {"qx_mid", 2, Chama<FazMid>},
    {"qx_mid", 3, Chama<FazMid>},   {"qx_trim", 1, Chama<FazTrim>},   {"qx_len", 1, Chama<FazLen>},
    {"qx_val", 1, Chama<FazVal>},   {"qx_cdbl", 1, Chama<FazCDbl>},   {"qx_cvdate", 1, Chama<FazCVDate>},
    {"qx_like", 2, Chama<FazLike>},
};

} // namespace

int RegistraFuncoes(sqlite3 *db)
{
    constexpr int OPCOES = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;
    for (const Funcao &f : FUNCOES) {
        const int codigo = sqlite3_create_function_v2(db, f.nome, f.argumentos, OPCOES, nullptr, f.chamada,
                                                      nullptr, nullptr, nullptr);
        if (codigo != SQLITE_OK)
            return codigo;
    }
    return sqlite3_create_collation_v2(db, "PORTUGUES", SQLITE_UTF8, nullptr, ComparaNoMotor, nullptr);
}

} // namespace plataforma::jet
