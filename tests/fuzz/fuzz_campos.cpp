// Fuzz: any bytes in the fields of the store, as another program may have left them. Lookups and the next
// row's number end in a value or in RuntimeError, and the row that is added can be read back.
#include "nucleo/Armazem.h"
#include "nucleo/Mensagens.h"
#include "plataforma/basico/RuntimeError.h"

#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <QDir>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <sqlite3.h>
#include <string>

namespace {

class Calada final : public nucleo::Mensagens {
public:
    nucleo::Resposta MsgBox(const QString &, nucleo::Botoes, nucleo::Icone, const QString &) override
    {
        return nucleo::Resposta::Ok;
    }
};

void Exige(bool verdade)
{
    if (!verdade)
        std::abort();
}

class Loja {
public:
    Loja()
    {
        Exige(sqlite3_open(m_pasta.filePath("QX70.MDB").toUtf8().constData(), &m_banco) == SQLITE_OK);
        Exige(sqlite3_exec(m_banco,
                           "pragma synchronous=off; create table Bancos(Codigo TEXT, Nome TEXT);"
                           "create table Log(\"Index\" TEXT, Codigo TEXT, Favor TEXT)",
                           nullptr, nullptr, nullptr) == SQLITE_OK);
    }
    ~Loja() { sqlite3_close(m_banco); }
    Loja(const Loja &) = delete;
    Loja &operator=(const Loja &) = delete;

    void Recomeca(const std::string &a, const std::string &b)
    {
        Exige(sqlite3_exec(m_banco, "delete from Bancos; delete from Log", nullptr, nullptr, nullptr) ==
              SQLITE_OK);
        Poe("insert into Bancos values (cast(?1 as text), ?2)", a, b);
        Poe("insert into Log values (cast(?1 as text), cast(?2 as text), ?2)", a, b);
    }
    [[nodiscard]] QString Pasta() const { return m_pasta.path(); }

private:
    void Poe(const char *comando, const std::string &a, const std::string &b)
    {
        sqlite3_stmt *preparado = nullptr;
        Exige(sqlite3_prepare_v2(m_banco, comando, -1, &preparado, nullptr) == SQLITE_OK);
        sqlite3_bind_blob(preparado, 1, a.data(), static_cast<int>(a.size()), SQLITE_TRANSIENT);
        sqlite3_bind_blob(preparado, 2, b.data(), static_cast<int>(b.size()), SQLITE_TRANSIENT);
        Exige(sqlite3_step(preparado) == SQLITE_DONE);
        sqlite3_finalize(preparado);
    }

    QTemporaryDir m_pasta;
    sqlite3 *m_banco = nullptr;
};

void Prova(nucleo::Armazem &armazem, const QString &chave)
{
    if (armazem.AbreBanco(1, 0, 0, 1, 0) == nucleo::kSemBanco)
        return;
    static_cast<void>(armazem.NomeBancoPorCodigo(chave));
    plataforma::Dynaset &log = armazem.Conjunto(nucleo::SelLog);
    const QString index = nucleo::ProximoIndex(log);
    log.AddNew();
    log.SetField(QStringLiteral("Index"), index);
    log.Update();
    log.MoveLast();
    Exige(log.Field(QStringLiteral("Index")) == index);
    armazem.FechaBanco(1, 0, 0, 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *dados, std::size_t tamanho)
{
    static Loja loja;
    static Calada mensagens;
    FuzzedDataProvider fonte(dados, tamanho);
    const std::string a = fonte.ConsumeRandomLengthString(64);
    const std::string b = fonte.ConsumeRandomLengthString(64);
    const QString chave = QString::fromUtf8(fonte.ConsumeRemainingBytesAsString().c_str());
    loja.Recomeca(a, b);
    // Opening goes to the folder of the store; the fuzzer keeps its inputs below its own.
    const QString pasta = QDir::currentPath();
    const auto volta = qScopeGuard([&pasta] { QDir::setCurrent(pasta); });
    nucleo::Armazem armazem(loja.Pasta(), QStringLiteral("QX70.MDB"), mensagens);
    try {
        Prova(armazem, chave);
    } catch (const plataforma::RuntimeError &) {
    }
    return 0;
}
