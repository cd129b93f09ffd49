// See Escritorio.h.
#include "apoio/Escritorio.h"

#include <QFile>
#include <QProcess>
#include <QStringDecoder>
#include <sqlite3.h>
#include <stdexcept>

namespace apoio {

namespace {

void Exige(bool condicao, const QString &falha)
{
    if (!condicao)
        throw std::runtime_error(falha.toStdString());
}

class Ligacao {
public:
    explicit Ligacao(const QString &caminho)
    {
        Exige(sqlite3_open(caminho.toUtf8().constData(), &m_banco) == SQLITE_OK, "cannot open " + caminho);
        sqlite3_busy_timeout(m_banco, 5000);
    }
    ~Ligacao() { sqlite3_close(m_banco); }
    Ligacao(const Ligacao &) = delete;
    Ligacao &operator=(const Ligacao &) = delete;
    sqlite3 *operator()() const { return m_banco; }

private:
    sqlite3 *m_banco = nullptr;
};

} // namespace

Escritorio::Escritorio()
{
    Exige(m_pasta.isValid(), "no temporary folder");
}

void Escritorio::CriaBanco() const
{
    QProcess cria;
    cria.start(QStringLiteral(QX70_BIN_DIR "/qx70-banco"), {"cria", Pasta()});
    Exige(cria.waitForFinished(30000) && cria.exitCode() == 0,
          "qx70-banco cria: " + QString::fromLocal8Bit(cria.readAllStandardError()));
}

void Escritorio::Sql(const QString &comandos) const
{
    const Ligacao banco(Arquivo("QX70.MDB"));
    char *falha = nullptr;
    const int resultado = sqlite3_exec(banco(), comandos.toUtf8().constData(), nullptr, nullptr, &falha);
    const QString texto = QString::fromUtf8(falha);
    sqlite3_free(falha);
    Exige(resultado == SQLITE_OK, texto + " in " + comandos);
}

QList<QStringList> Escritorio::Linhas(const QString &consulta) const
{
    const Ligacao banco(Arquivo("QX70.MDB"));
    sqlite3_stmt *comando = nullptr;
    Exige(sqlite3_prepare_v2(banco(), consulta.toUtf8().constData(), -1, &comando, nullptr) == SQLITE_OK,
          QString::fromUtf8(sqlite3_errmsg(banco())) + " in " + consulta);
    QList<QStringList> linhas;
    while (sqlite3_step(comando) == SQLITE_ROW) {
        QStringList linha;
        for (int i = 0; i < sqlite3_column_count(comando); ++i)
            linha << QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(comando, i)));
        linhas << linha;
    }
    sqlite3_finalize(comando);
    return linhas;
}

void Escritorio::GravaIni(const QString &conteudo) const
{
    QFile arquivo(Arquivo("QX70.INI"));
    Exige(arquivo.open(QIODevice::WriteOnly), "cannot write QX70.INI");
    QString texto = conteudo;
    arquivo.write(texto.replace("\n", "\r\n").toLatin1());
}

QString Escritorio::LeIni() const
{
    QFile arquivo(Arquivo("QX70.INI"));
    return arquivo.open(QIODevice::ReadOnly) ? QString::fromLatin1(arquivo.readAll()) : QString();
}

QString Escritorio::Chave(const QString &secao, const QString &chave) const
{
    bool dentro = false;
    const QStringList linhas = LeIni().split("\r\n");
    for (const QString &linha : linhas) {
        if (linha.startsWith('['))
            dentro = linha.compare('[' + secao + ']', Qt::CaseInsensitive) == 0;
        else if (dentro && linha.startsWith(chave + '=', Qt::CaseInsensitive))
            return linha.mid(chave.size() + 1);
    }
    return {};
}

} // namespace apoio
