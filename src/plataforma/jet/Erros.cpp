// Failures of the SQL engine put into the run-time failures that the rooms above know.
#include "Erros.h"

#include <sqlite3.h>

namespace plataforma::jet {

namespace {

struct Traducao {
    int codigo;        // primary result code of the engine
    int numero;        // number of the run-time failure
    const char *texto; // %1 file, %2 the engine's words
};

constexpr const char *NAO_ABRE =
    "Não foi possível abrir ou gravar o banco de dados \"%1\" (%2). Verifique o disco e as permissões.";
constexpr const char *PROTEGIDO = "O banco de dados \"%1\" não pode ser gravado: o arquivo, a pasta ou o "
                                  "disco é só de leitura. Verifique as permissões.";
constexpr const char *DISCO_CHEIO = "O disco está cheio: não foi possível gravar no banco de dados \"%1\". "
                                    "Libere espaço e tente de novo.";
constexpr const char *EM_USO =
    "O banco de dados \"%1\" está em uso por outro programa. Feche-o e tente de novo.";
constexpr const char *NAO_E_BANCO =
    "O arquivo \"%1\" não é um banco de dados válido ou está danificado (%2).";

constexpr Traducao TRADUCOES[] = {
    {SQLITE_BUSY, ErrLock, EM_USO},
    {SQLITE_LOCKED, ErrLock, EM_USO},
    {SQLITE_PROTOCOL, ErrLock, EM_USO},
    {SQLITE_NOTADB, ErrNotADatabase, NAO_E_BANCO},
    {SQLITE_CORRUPT, ErrNotADatabase, NAO_E_BANCO},
    {SQLITE_FORMAT, ErrNotADatabase, NAO_E_BANCO},
    {SQLITE_CANTOPEN, ErrOpen, NAO_ABRE},
    {SQLITE_READONLY, ErrOpen, PROTEGIDO},
    {SQLITE_PERM, ErrOpen, NAO_ABRE},
    {SQLITE_FULL, ErrOpen, DISCO_CHEIO},
    {SQLITE_IOERR, ErrOpen, NAO_ABRE},
    {SQLITE_NOMEM, ErrOpen, NAO_ABRE},
    {SQLITE_NOLFS, ErrOpen, NAO_ABRE},
    {SQLITE_CONSTRAINT, ErrChaveRepetida, "A linha foi recusada pelas regras do banco de dados \"%1\" (%2)."},
    {SQLITE_MISMATCH, ErrTypeMismatch, "Um valor não serve para o seu campo no banco de dados \"%1\" (%2)."},
};

} // namespace

void LancaErroDoMotor(int codigo, const QString &arquivo, const QString &detalhe)
{
    for (const Traducao &t : TRADUCOES) {
        if (t.codigo == (codigo & 0xFF))
            throw RuntimeError(t.numero,
                               QString::fromUtf8(t.texto).replace("%1", arquivo).replace("%2", detalhe));
    }
    throw RuntimeError(ErrQuery,
                       QString("O banco de dados \"%1\" recusou a operação (%2).").arg(arquivo, detalhe));
}

void LancaConsultaRecusada(const QString &motivo, const QString &consulta)
{
    throw RuntimeError(
        ErrQuery, QString("Erro de sintaxe na consulta: %1 Consulta: %2").arg(motivo, consulta.left(500)));
}

void LancaSemTabela(const QString &tabela)
{
    throw RuntimeError(ErrNoTable,
                       QString("A tabela \"%1\" não existe no banco de dados.").arg(tabela.left(200)));
}

void LancaSemCampo(const QString &campo, const QString &tabela)
{
    throw RuntimeError(
        ErrNoField, QString("O campo \"%1\" não existe em \"%2\".").arg(campo.left(200), tabela.left(200)));
}

} // namespace plataforma::jet
