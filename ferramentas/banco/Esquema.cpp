// The tables of the store, their fields and their indexes: the one place that names them.
#include "Esquema.h"

#include "plataforma/basico/RuntimeError.h"

#include <algorithm>
#include <array>
#include <SQLiteCpp/SQLiteCpp.h>

namespace banco {

namespace {

using namespace std::string_view_literals;

constexpr std::array kBancos{"Codigo"sv, "Nome"sv, "L1"sv, "L2"sv, "L3"sv, "L4"sv, "L5"sv, "C1"sv,
                             "C2"sv,     "C3"sv,   "C4"sv, "C5"sv, "C6"sv, "C7"sv, "C8"sv};
constexpr std::array kTransferencia{"Codigo"sv, "Nome"sv, "L1"sv, "L2"sv, "L3"sv, "L4"sv, "L5"sv, "L6"sv,
                                    "L7"sv,     "C1"sv,   "C2"sv, "C3"sv, "C4"sv, "C5"sv, "C6"sv, "C7"sv};
constexpr std::array kCodigoENome{"Codigo"sv, "Nome"sv};
constexpr std::array kLog{"Index"sv,    "Codigo"sv,     "Banco"sv,       "V_CH"sv,
                          "Favor"sv,    "Local"sv,      "Data"sv,        "NRCH"sv,
                          "StCancel"sv, "Comentario"sv, "Comentario1"sv, "Comentario2"sv};
constexpr std::array kScript{"Codigo"sv, "Nome"sv, "l1"sv, "l2"sv, "l3"sv, "l4"sv,  "l5"sv,
                             "l6"sv,     "l7"sv,   "l8"sv, "c1"sv, "c2"sv, "c3"sv,  "c4"sv,
                             "c5"sv,     "c6"sv,   "c7"sv, "c8"sv, "c9"sv, "c10"sv, "c11"sv};

constexpr std::array<Tabela, 6> kTabelas{{{"Bancos"sv, kBancos, "Codigo"sv},
                                          {"Transferencia"sv, kTransferencia, "Codigo"sv},
                                          {"Favorecido"sv, kCodigoENome, "Codigo"sv},
                                          {"Cidade"sv, kCodigoENome, "Codigo"sv},
                                          {"Log"sv, kLog, "Index"sv},
                                          {"Script"sv, kScript, "Codigo"sv}}};

std::string EntreAspas(std::string_view nome)
{
    return '"' + std::string(nome) + '"';
}

// A plain rowid table: the program walks the log by rowid, and a new row goes behind all others.
std::string ComandoDaTabela(const Tabela &tabela)
{
    std::string sql = "CREATE TABLE " + EntreAspas(tabela.nome) + " (";
    for (std::size_t i = 0; i < tabela.campos.size(); ++i)
        sql += (i == 0 ? "" : ", ") + EntreAspas(tabela.campos[i]) + " TEXT";
    return sql + ")";
}

// Not unique on purpose: the program itself judges whether a code is taken, and may number a log whose first
// row has lost its code from the start again.
std::string ComandoDoIndice(const Tabela &tabela)
{
    const std::string nome = "i" + std::string(tabela.nome) + std::string(tabela.chave);
    return "CREATE INDEX " + EntreAspas(nome) + " ON " + EntreAspas(tabela.nome) + " (" +
           EntreAspas(tabela.chave) + ")";
}

} // namespace

QString NomeDe(const Tabela &tabela)
{
    return QString::fromUtf8(tabela.nome.data(), static_cast<qsizetype>(tabela.nome.size()));
}

std::span<const Tabela> Tabelas()
{
    return kTabelas;
}

const Tabela &TabelaDe(std::string_view nome)
{
    const auto tabela =
        std::find_if(kTabelas.begin(), kTabelas.end(), [nome](const Tabela &t) { return t.nome == nome; });
    if (tabela == kTabelas.end())
        throw plataforma::RuntimeError(
            plataforma::ErrNoTable,
            QStringLiteral("A tabela %1 não existe no banco de dados.").arg(QString::fromUtf8(nome)));
    return *tabela;
}

void CriaEsquema(SQLite::Database &loja)
{
    SQLite::Transaction transacao(loja);
    for (const Tabela &tabela : kTabelas) {
        loja.exec(ComandoDaTabela(tabela));
        loja.exec(ComandoDoIndice(tabela));
    }
    transacao.commit();
}

std::string ComandoDeInsercao(const Tabela &tabela)
{
    std::string campos;
    std::string lugares;
    for (const std::string_view campo : tabela.campos) {
        campos += (campos.empty() ? "" : ", ") + EntreAspas(campo);
        lugares += lugares.empty() ? "?" : ", ?";
    }
    return "INSERT INTO " + EntreAspas(tabela.nome) + " (" + campos + ") VALUES (" + lugares + ")";
}

bool EstaVazia(SQLite::Database &loja, const Tabela &tabela)
{
    SQLite::Statement consulta(loja, "SELECT 1 FROM " + EntreAspas(tabela.nome) + " LIMIT 1");
    return !consulta.executeStep();
}

} // namespace banco
