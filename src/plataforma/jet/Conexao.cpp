// One open connection to the store file: its options, its guard against writing queries, its tables.
#include "Conexao.h"

#include "Comando.h"
#include "Erros.h"
#include "Funcoes.h"
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>
#include <SQLiteCpp/Exception.h>

namespace plataforma {

namespace {

constexpr int ESPERA_MS = 250;             // for a lock of another program, when reading
constexpr int ESPERA_DE_ESCRITA_MS = 3000; // a row that is to be kept is worth a longer one

// A missing file is never created, and an empty one is no store.
QString ExigeArquivo(const QString &caminho)
{
    const QFileInfo arquivo(caminho);
    if (!arquivo.exists())
        throw RuntimeError(ErrFileMissing, QString("O arquivo \"%1\" não foi encontrado.").arg(caminho));
    if (arquivo.isDir())
        jet::LancaErroDoMotor(SQLITE_CANTOPEN, caminho, "é uma pasta");
    if (arquivo.size() == 0)
        jet::LancaErroDoMotor(SQLITE_NOTADB, caminho, "arquivo vazio");
    return caminho;
}

// One thread uses the connection; the engine's own locks around every value would double the time of a long
// read.
constexpr int OPCOES = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;

SQLite::Database Abre(const QString &caminho)
{
    try {
        return {QFile::encodeName(ExigeArquivo(caminho)).toStdString(), OPCOES, ESPERA_MS};
    } catch (const SQLite::Exception &erro) {
        jet::LancaErroDoMotor(erro.getErrorCode(), caminho, QString::fromUtf8(erro.getErrorStr()));
    }
}

bool SoLe(int acao)
{
    return acao == SQLITE_SELECT || acao == SQLITE_READ || acao == SQLITE_TRANSACTION;
}

bool Escreve(int acao)
{
    return SoLe(acao) || acao == SQLITE_INSERT || acao == SQLITE_UPDATE || acao == SQLITE_DELETE;
}

int Autoriza(void *conexao, int acao, const char *, const char *nome, const char *, const char *)
{
    const auto modo = static_cast<Database::Connection *>(conexao)->modo;
    if (modo == Database::Connection::Modo::Esquema)
        return SQLITE_OK;
    if (acao == SQLITE_FUNCTION)
        return qstrcmp(nome, "load_extension") == 0 ? SQLITE_DENY : SQLITE_OK;
    const bool pode = modo == Database::Connection::Modo::Escrita ? Escreve(acao) : SoLe(acao);
    return pode ? SQLITE_OK : SQLITE_DENY;
}

// A table name as the file spells it, and whether its rows have numbers.
bool AchaTabela(jet::Conexao &conexao, const QString &nome, jet::Tabela &tabela)
{
    jet::Comando lista(conexao, "select name, wr from pragma_table_list where schema = 'main' and "
                                "type in ('table', 'virtual') and name not like 'sqlite\\_%' escape '\\'");
    while (lista.Passo()) {
        if (lista.Texto(0).compare(nome, Qt::CaseInsensitive) != 0)
            continue;
        tabela.nome = lista.Texto(0);
        tabela.temNumero = lista.Inteiro(1) == 0;
        return true;
    }
    return false;
}

// Whether "=" in the column's own order finds the same rows as in ours, for a text without letters.
bool ComparaDireto(sqlite3 *motor, const QString &tabela, const QString &coluna)
{
    const char *ordem = nullptr;
    const int codigo =
        sqlite3_table_column_metadata(motor, "main", tabela.toUtf8().constData(), coluna.toUtf8().constData(),
                                      nullptr, &ordem, nullptr, nullptr, nullptr);
    return codigo == SQLITE_OK && ordem && (qstricmp(ordem, "BINARY") == 0 || qstricmp(ordem, "NOCASE") == 0);
}

// The name by which the row number is reached; a column of the same name hides one of the three.
QString NomeDoNumero(const jet::Tabela &tabela)
{
    for (const char *nome : {"rowid", "_rowid_", "oid"}) {
        if (tabela.IndiceDe(nome) < 0)
            return nome;
    }
    throw RuntimeError(
        ErrOpen,
        QString("A tabela \"%1\" não tem uma chave para encontrar as suas linhas.").arg(tabela.nome));
}

} // namespace

Database::Connection::Connection(const QString &caminho) : m_caminho(caminho), m_banco(Abre(caminho))
{
    Configura();
    // Reads the file once, so that a lock or a file of another kind shows now.
    jet::Comando(*this, "select count(*) from sqlite_master").Passo();
    if (const int codigo = jet::RegistraFuncoes(Motor()); codigo != SQLITE_OK)
        LancaErro(codigo);
    sqlite3_set_authorizer(Motor(), Autoriza, this);
    modo = Modo::Leitura;
}

void Database::Connection::Configura()
{
    // What the file itself may hold (views, triggers, indexes) is not trusted with anything but its own rows.
    sqlite3_db_config(Motor(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(Motor(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(Motor(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    // EXTRA is FULL that also syncs the folder once the journal is gone: without it a power cut right after
    // Update could bring the journal, and with it the old row, back.
    jet::Comando(*this, "pragma synchronous = extra").Passo();
}

void Database::Connection::EsperaMais(bool mais) const noexcept
{
    sqlite3_busy_timeout(Motor(), mais ? ESPERA_DE_ESCRITA_MS : ESPERA_MS);
}

jet::Tabela Database::Connection::LeTabela(const QString &nome)
{
    const jet::ModoTemporario esquema(*this, Modo::Esquema);
    jet::Tabela tabela;
    if (!AchaTabela(*this, nome, tabela))
        jet::LancaSemTabela(nome);
    jet::Comando colunas(*this, "select name, pk from pragma_table_info(" + jet::TextoCitado(tabela.nome) +
                                    ") order by cid");
    QMap<qint64, QString> primaria;
    while (colunas.Passo()) {
        const QString coluna = colunas.Texto(0);
        tabela.colunas.append({coluna, ComparaDireto(Motor(), tabela.nome, coluna)});
        if (colunas.Inteiro(1) > 0)
            primaria.insert(colunas.Inteiro(1), jet::NomeCitado(coluna));
    }
    tabela.chave = tabela.temNumero ? QStringList{NomeDoNumero(tabela)} : QStringList(primaria.values());
    return tabela;
}

void Database::Connection::LancaErro(int codigo) const
{
    jet::LancaErroDoMotor(codigo, m_caminho, QString::fromUtf8(sqlite3_errmsg(Motor())));
}

} // namespace plataforma
