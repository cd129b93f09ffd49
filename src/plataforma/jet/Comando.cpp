// One prepared statement over the engine's own interface.
#include "Comando.h"

#include "Erros.h"
#include "Ordem.h"
#include <sqlite3.h>

namespace plataforma::jet {

void Comando::Finaliza::operator()(sqlite3_stmt *comando) const noexcept
{
    sqlite3_finalize(comando);
}

Comando::Comando(Conexao &conexao, const QString &sql) : m_conexao(conexao)
{
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt *comando = nullptr;
    const int codigo = sqlite3_prepare_v3(conexao.Motor(), utf8.constData(), static_cast<int>(utf8.size()),
                                          SQLITE_PREPARE_PERSISTENT, &comando, nullptr);
    m_comando.reset(comando);
    Exige(codigo);
    if (conexao.modo == Conexao::Modo::Leitura && !sqlite3_stmt_readonly(comando))
        LancaConsultaRecusada("só são aceitas consultas que leem.", sql);
}

void Comando::Exige(int codigo) const
{
    if (codigo != SQLITE_OK)
        m_conexao.LancaErro(codigo);
}

int Comando::Liga(int indice, qint64 valor)
{
    Exige(sqlite3_bind_int64(m_comando.get(), indice, valor));
    return indice + 1;
}

int Comando::LigaTexto(int indice, const QString &valor)
{
    const QByteArray utf8 = valor.toUtf8();
    Exige(valor.isNull()
              ? sqlite3_bind_null(m_comando.get(), indice)
              : sqlite3_bind_text64(m_comando.get(), indice, utf8.constData(),
                                    static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT, SQLITE_UTF8));
    return indice + 1;
}

int Comando::LigaChave(int indice, const Chave &chave)
{
    if (chave.valores.isEmpty())
        return Liga(indice, chave.numero);
    for (const Valor &valor : chave.valores)
        LigaValor(indice++, valor);
    return indice;
}

void Comando::LigaValor(int indice, const Valor &valor)
{
    sqlite3_stmt *comando = m_comando.get();
    const auto tamanho = static_cast<sqlite3_uint64>(valor.bytes.size());
    switch (valor.tipo) {
    case SQLITE_INTEGER:
        return Exige(sqlite3_bind_int64(comando, indice, valor.inteiro));
    case SQLITE_FLOAT:
        return Exige(sqlite3_bind_double(comando, indice, valor.real));
    case SQLITE_TEXT:
        return Exige(sqlite3_bind_text64(comando, indice, valor.bytes.constData(), tamanho, SQLITE_TRANSIENT,
                                         SQLITE_UTF8));
    case SQLITE_BLOB:
        return Exige(
            sqlite3_bind_blob64(comando, indice, valor.bytes.constData(), tamanho, SQLITE_TRANSIENT));
    default:
        return Exige(sqlite3_bind_null(comando, indice));
    }
}

bool Comando::Passo()
{
    const int codigo = sqlite3_step(m_comando.get());
    if (codigo != SQLITE_ROW && codigo != SQLITE_DONE)
        m_conexao.LancaErro(codigo);
    return codigo == SQLITE_ROW;
}

void Comando::Rebobina() noexcept
{
    sqlite3_reset(m_comando.get());
}

qint64 Comando::Inteiro(int coluna) const
{
    return sqlite3_column_int64(m_comando.get(), coluna);
}

std::string_view Comando::Bytes(int coluna) const
{
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(m_comando.get(), coluna));
    const int tamanho = sqlite3_column_bytes(m_comando.get(), coluna);
    if (bytes)
        return {bytes, static_cast<std::size_t>(tamanho)};
    // An empty blob has no address either.
    return sqlite3_column_type(m_comando.get(), coluna) == SQLITE_NULL ? std::string_view()
                                                                       : std::string_view("");
}

QString Comando::Texto(int coluna) const
{
    const std::string_view bytes = Bytes(coluna);
    return bytes.data() ? TextoGravado(bytes) : QString();
}

Valor Comando::LeValor(int coluna) const
{
    sqlite3_stmt *comando = m_comando.get();
    Valor valor;
    valor.tipo = sqlite3_column_type(comando, coluna);
    if (valor.tipo == SQLITE_INTEGER)
        valor.inteiro = sqlite3_column_int64(comando, coluna);
    else if (valor.tipo == SQLITE_FLOAT)
        valor.real = sqlite3_column_double(comando, coluna);
    else if (valor.tipo != SQLITE_NULL) {
        const std::string_view bytes = Bytes(coluna);
        valor.bytes = QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }
    return valor;
}

Chave Comando::LeChave(int coluna, bool numero, int partes) const
{
    if (numero)
        return {Inteiro(coluna), {}};
    Chave chave;
    for (int i = 0; i < partes; ++i)
        chave.valores.append(LeValor(coluna + i));
    return chave;
}

} // namespace plataforma::jet
