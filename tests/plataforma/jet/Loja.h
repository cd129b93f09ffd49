// A store in a temporary folder for the tests, filled through the engine itself and not through the code
// under test.
#pragma once

#include "plataforma/basico/RuntimeError.h"
#include "plataforma/jet/Database.h"
#include "plataforma/jet/Dynaset.h"
#include <gtest/gtest.h>
#include <QStringList>
#include <QTemporaryDir>
#include <sqlite3.h>

/// Readable texts in the messages of failed tests.
inline void PrintTo(const QString &texto, std::ostream *os)
{
    *os << (texto.isNull() ? "<null>" : '"' + texto.toStdString() + '"');
}

namespace loja {

/// Runs statements on a file through a connection of its own, as another program would.
class OutroPrograma {
public:
    explicit OutroPrograma(const QString &caminho);
    ~OutroPrograma() { sqlite3_close(m_db); }
    OutroPrograma(const OutroPrograma &) = delete;
    OutroPrograma &operator=(const OutroPrograma &) = delete;
    void Executa(const QString &sql) const;
    /// The first value of the first row, as text.
    [[nodiscard]] QString Valor(const QString &sql) const;
    [[nodiscard]] sqlite3 *Motor() const { return m_db; }

private:
    sqlite3 *m_db = nullptr;
};

/// The six tables, all TEXT, without keys and without rows.
extern const char *const TABELAS;

class Loja : public testing::Test {
protected:
    Loja();
    [[nodiscard]] QString Caminho() const { return m_pasta.filePath("QX70.MDB"); }
    void Executa(const QString &sql) const { OutroPrograma(Caminho()).Executa(sql); }
    [[nodiscard]] QString Valor(const QString &sql) const { return OutroPrograma(Caminho()).Valor(sql); }
    /// Rows 1 to `quantas` of Log: Index, Codigo, Banco "001", V_CH, Favor, Data "01/02/99".
    void SemeiaLog(int quantas) const;
    /// Everything that the file holds, as the statements that would make it again.
    [[nodiscard]] QString Conteudo() const;

    QTemporaryDir m_pasta;
};

/// The values of one field from the first row to the last, NULL as "<NULL>".
QStringList Coluna(plataforma::Dynaset &d, const QString &campo);
/// The same of a query.
QStringList Coluna(const QString &caminho, const QString &consulta, const QString &campo);

/// Names a row of a table of cases.
inline const auto NomeDoCaso = [](const auto &caso) { return caso.param.nome; };

/// The number of the run-time failure that an action raises, 0 when it raises none.
template <typename Acao> int NumeroDoErro(Acao acao)
{
    try {
        acao();
    } catch (const plataforma::RuntimeError &erro) {
        return erro.number();
    }
    return 0;
}

} // namespace loja
