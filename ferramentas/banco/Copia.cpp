// Command "copia": a copy of the store and of QX70.INI, taken while the program runs, whole or not at all.
#include "Comandos.h"
#include "Console.h"
#include "Leitura.h"
#include "Loja.h"
#include "Publicacao.h"

#include <chrono>
#include <fcntl.h>
#include <optional>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sqlite3.h>
#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/SQLiteCpp.h>
#include <unistd.h>

namespace banco {

namespace {

using plataforma::ErrOpen;
using plataforma::RuntimeError;

/// The folder of the copy. One that was made here goes again, unless the copy came about.
class Destino {
public:
    explicit Destino(const QString &pasta) : m_pasta(pasta)
    {
        if (!QFileInfo::exists(pasta)) {
            ExigePastaGravavel(QFileInfo(pasta).absolutePath());
            m_criada = QDir().mkdir(pasta);
        }
        ExigePastaGravavel(pasta);
    }
    ~Destino()
    {
        if (m_criada && !m_completa)
            QDir().rmdir(m_pasta);
    }
    Destino(const Destino &) = delete;
    Destino &operator=(const Destino &) = delete;

    void Completa()
    {
        SincronizaPasta(m_pasta);
        if (m_criada)
            SincronizaPasta(QFileInfo(m_pasta).absolutePath());
        m_completa = true;
    }

private:
    QString m_pasta;
    bool m_criada = false;
    bool m_completa = false;
};

/// Copies the pages of one store into another, some at a time; between two steps the program may write. A
/// write makes the copy begin anew, so that after some beginnings all is copied in one step, during which
/// writers wait.
class CopiaDePaginas {
public:
    CopiaDePaginas(SQLite::Database &nova, SQLite::Database &loja) : m_copia(nova, loja) {}

    /// @throws SQLite::Exception
    void Faz()
    {
        std::optional<Progresso> progresso;
        while (!Passo()) {
            if (!progresso)
                progresso.emplace(QStringLiteral("Cópia"), m_copia.getTotalPageCount());
            progresso->Mostra(m_copia.getTotalPageCount() - m_copia.getRemainingPageCount());
        }
    }

private:
    static constexpr int kPaginasPorPasso = 512; // 2 MB, some milliseconds
    static constexpr int kRecomecos = 5;
    static constexpr std::chrono::seconds kEsperaPorOutro{30};

    // @return whether it was the last one
    bool Passo()
    {
        const bool emPartes = m_recomecos < kRecomecos;
        const int faltavam = m_copia.getRemainingPageCount();
        const int resultado = m_copia.executeStep(emPartes ? kPaginasPorPasso : -1);
        if (resultado == SQLITE_BUSY && std::chrono::steady_clock::now() - m_ultimoPasso < kEsperaPorOutro)
            return false;
        if (resultado != SQLITE_OK && resultado != SQLITE_DONE)
            throw SQLite::Exception(sqlite3_errstr(resultado), resultado);
        m_ultimoPasso = std::chrono::steady_clock::now();
        const bool primeiro = faltavam == 0;
        m_recomecos += !primeiro && m_copia.getRemainingPageCount() >= faltavam ? 1 : 0;
        return resultado == SQLITE_DONE;
    }

    SQLite::Backup m_copia;
    int m_recomecos = 0;
    std::chrono::steady_clock::time_point m_ultimoPasso = std::chrono::steady_clock::now();
};

RuntimeError ErroDaCopia(const SQLite::Exception &erro, const QString &origem, const QString &pasta)
{
    constexpr int kCodigoPrimario = 0xFF;
    const int codigo = erro.getErrorCode() & kCodigoPrimario;
    if (codigo == SQLITE_FULL)
        return {ErrOpen, QStringLiteral(
                             "O disco da pasta %1 está cheio, e a cópia não foi feita. Libere espaço e tente "
                             "de novo.")
                             .arg(pasta)};
    if (codigo == SQLITE_IOERR || codigo == SQLITE_CANTOPEN || codigo == SQLITE_READONLY ||
        codigo == SQLITE_PERM)
        return {
            ErrOpen,
            QStringLiteral("A cópia não foi feita: não foi possível ler %1 ou gravar na pasta %2. Verifique "
                           "os discos e as permissões.")
                .arg(origem, pasta)};
    return ErroDaLoja(SQLite::Exception(erro.what(), codigo), origem);
}

void ExigeInteira(SQLite::Database &nova, const QString &origem)
{
    SQLite::Statement leitura(nova, "PRAGMA integrity_check(1)");
    if (!leitura.executeStep() || leitura.getColumn(0).getString() != "ok")
        throw RuntimeError(
            plataforma::ErrNotADatabase,
            QStringLiteral("O arquivo %1 está danificado, e a cópia não foi feita. Veja o que há com "
                           "\"qx70-banco confere\".")
                .arg(origem));
}

// The copy lies in a work folder that goes with it when anything fails; it needs no journal of its own.
void CopiaLoja(SQLite::Database &loja, const QString &origem, const QString &copia)
{
    SQLite::Database nova(QFile::encodeName(copia).toStdString(),
                          SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    nova.exec("PRAGMA journal_mode=OFF");
    nova.exec("PRAGMA synchronous=OFF");
    CopiaDePaginas(nova, loja).Faz();
    ExigeInteira(nova, origem);
}

void Sincroniza(const QString &caminho)
{
    const int fd = ::open(QFile::encodeName(caminho).constData(), O_RDONLY | O_CLOEXEC);
    const bool feito = fd >= 0 && ::fsync(fd) == 0;
    if (fd >= 0)
        ::close(fd);
    if (!feito)
        throw RuntimeError(
            ErrOpen, QStringLiteral("O arquivo %1 não pôde ser gravado. Verifique o disco.").arg(caminho));
}

// The program replaces its settings as a whole, so that one reading has either the old ones or the new ones.
void CopiaIni(const QString &origem, const QString &copia)
{
    const QByteArray bytes = LeTudo(origem);
    QFile arquivo(copia);
    if (!arquivo.open(QIODevice::WriteOnly) || arquivo.write(bytes) != bytes.size() || !arquivo.flush())
        throw RuntimeError(
            ErrOpen, QStringLiteral("Não foi possível gravar %1: %2.").arg(copia, arquivo.errorString()));
    arquivo.close();
    Sincroniza(copia);
}

/// Where the copy is made from and to.
struct Arquivos {
    QString loja, ini;         ///< of the office
    QString pasta;             ///< of the copy
    QString novaLoja, novoIni; ///< in it
    bool temIni = false;       ///< whether the office has settings
};

// The store comes last: a folder in which it is has the whole copy, even when the machine stops in between.
void Publica(const Arquivos &arquivos, const QString &loja, const QString &ini)
{
    if (arquivos.temIni)
        PublicaSemSobrescrever(ini, arquivos.novoIni);
    try {
        PublicaSemSobrescrever(loja, arquivos.novaLoja);
    } catch (const RuntimeError &) {
        if (arquivos.temIni)
            QFile::remove(arquivos.novoIni);
        throw;
    }
}

void ExigeLugar(const Arquivos &arquivos, const QString &origem)
{
    const QFileInfo destino(arquivos.pasta);
    if (destino.exists() && destino.canonicalFilePath() == QFileInfo(origem).canonicalFilePath())
        throw RuntimeError(
            ErrOpen, QStringLiteral("%1 é a própria pasta do banco de dados. Escolha outra para a cópia.")
                         .arg(arquivos.pasta));
    for (const QString &novo : {arquivos.novaLoja, arquivos.novoIni})
        if (QFileInfo::exists(novo) || QFileInfo(novo).isSymLink())
            throw ErroDeExistente(novo);
    ExigeSemDiario(arquivos.novaLoja);
}

void CopiaTudo(const Arquivos &arquivos)
{
    const auto loja = AbreParaLer(arquivos.loja);
    Destino destino(arquivos.pasta);
    const QTemporaryDir oficina(QDir(arquivos.pasta).filePath(QStringLiteral(".qx70-banco-XXXXXX")));
    if (!oficina.isValid())
        throw RuntimeError(ErrOpen, QStringLiteral("Não foi possível gravar na pasta %1: %2.")
                                        .arg(arquivos.pasta, oficina.errorString()));
    const QString copiaDaLoja = oficina.filePath(QLatin1String(kNomeDaLoja));
    const QString copiaDoIni = oficina.filePath(QLatin1String(kNomeDoIni));
    CopiaLoja(*loja, arquivos.loja, copiaDaLoja);
    Sincroniza(copiaDaLoja);
    if (arquivos.temIni)
        CopiaIni(arquivos.ini, copiaDoIni);
    Publica(arquivos, copiaDaLoja, copiaDoIni);
    destino.Completa();
}

} // namespace

int Copia(const QStringList &argumentos)
{
    if (argumentos.size() != 2 || argumentos.contains(QString()) ||
        argumentos[0].startsWith(QLatin1Char('-')) || argumentos[1].startsWith(QLatin1Char('-')))
        return ReclamaDaChamada(
            QStringLiteral("\"copia\" pede a pasta do banco de dados e a da cópia, e só isso."));
    const QString pasta = QDir::cleanPath(argumentos[1]);
    Arquivos arquivos{ArquivoNaPasta(argumentos[0], QLatin1String(kNomeDaLoja)),
                      ArquivoNaPasta(argumentos[0], QLatin1String(kNomeDoIni)), pasta,
                      ArquivoNaPasta(pasta, QLatin1String(kNomeDaLoja)),
                      ArquivoNaPasta(pasta, QLatin1String(kNomeDoIni))};
    arquivos.temIni = QFileInfo::exists(arquivos.ini);
    ExigeLugar(arquivos, argumentos[0]);
    try {
        CopiaTudo(arquivos);
    } catch (const SQLite::Exception &erro) {
        throw ErroDaCopia(erro, arquivos.loja, pasta);
    }
    Diz(QStringLiteral("Copiado: %1").arg(arquivos.novaLoja));
    if (arquivos.temIni)
        Diz(QStringLiteral("Copiado: %1").arg(arquivos.novoIni));
    else
        Reclama(QStringLiteral("A pasta %1 não tem o arquivo QX70.INI; só o banco de dados foi copiado.")
                    .arg(argumentos[0]));
    return kFeito;
}

} // namespace banco
