// Fuzz: any text as a query and as a criterion on a small store. Only RuntimeError may come out, and the file
// stays as it is.
#include "plataforma/basico/RuntimeError.h"
#include "plataforma/jet/Database.h"
#include "plataforma/jet/Dynaset.h"

#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <memory>
#include <QTemporaryDir>
#include <sqlite3.h>

using namespace plataforma;

namespace {

constexpr const char *LOJA = R"(
create table Log ("Index" TEXT, Codigo TEXT, Favor TEXT, Data TEXT, V_CH TEXT);
create table Bancos (Codigo TEXT PRIMARY KEY, Nome) without rowid;
insert into Log values ('0000000001', '00001', 'José', '01/02/99', '1234,56'), ('2', '', NULL, '  /11/02', 'x'),
  (x'00ff', cast(x'e3' as text), 'A*', '31/12/29', ',5');
insert into Bancos values ('001', 'Água'), ('002', 1.5), ('003', NULL);
)";

void Exige(bool verdade)
{
    if (!verdade) {
        std::abort();
    }
}

class Loja {
public:
    Loja() : m_caminho(m_pasta.filePath("QX70.MDB"))
    {
        Exige(sqlite3_open(m_caminho.toUtf8().constData(), &m_observador) == SQLITE_OK);
        Exige(sqlite3_exec(m_observador, LOJA, nullptr, nullptr, nullptr) == SQLITE_OK);
        m_banco = std::make_unique<Database>(m_caminho);
        m_versao = Versao();
    }
    ~Loja() { sqlite3_close(m_observador); }
    Loja(const Loja &) = delete;
    Loja &operator=(const Loja &) = delete;

    [[nodiscard]] const Database &Banco() const { return *m_banco; }
    /// Whether any other connection has changed the file since the store was made.
    [[nodiscard]] bool Mudou() const { return Versao() != m_versao; }

private:
    [[nodiscard]] int Versao() const
    {
        int versao = 0;
        const auto linha = [](void *saida, int, char **valores, char **) {
            *static_cast<int *>(saida) = std::atoi(valores[0]);
            return 0;
        };
        Exige(sqlite3_exec(m_observador, "pragma data_version", linha, &versao, nullptr) == SQLITE_OK);
        return versao;
    }

    QTemporaryDir m_pasta;
    QString m_caminho;
    sqlite3 *m_observador = nullptr;
    std::unique_ptr<Database> m_banco;
    int m_versao = 0;
};

QString Texto(const std::string &bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

template <typename Chamada> void SoRuntimeError(Chamada chamada)
{
    try {
        chamada();
    } catch (const RuntimeError &erro) {
        Exige(erro.number() != 0 && !erro.text().isEmpty());
    }
}

void LeTudo(Dynaset &d)
{
    int linhas = 0;
    for (d.MoveFirst(); !d.AtEnd(); d.MoveNext()) {
        for (const QString &campo : d.FieldNames()) {
            (void)d.Field(campo);
        }
        Exige(++linhas <= 3);
    }
    Exige(linhas == d.RecordCount());
    for (d.MoveLast(); !d.BOF(); d.MovePrevious()) {
        --linhas;
    }
    Exige(linhas == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t tamanho)
{
    static const Loja loja;
    FuzzedDataProvider dados(bytes, tamanho);
    const QString inicio =
        dados.PickValueInArray({"", "Select * From Log Where ", "Select * From Bancos Order by "});
    const QString criterio = Texto(dados.ConsumeRandomLengthString(200));
    const QString consulta = inicio + Texto(dados.ConsumeRemainingBytesAsString());
    SoRuntimeError([&] { LeTudo(*loja.Banco().OpenDynaset(consulta)); });
    SoRuntimeError([&] { loja.Banco().OpenDynaset("Log")->FindFirst(criterio); });
    SoRuntimeError(
        [&] { loja.Banco().OpenDynaset("Select * From Log Order by Favor")->FindFirst(criterio); });
    Exige(!loja.Mudou());
    return 0;
}
