// Conditions and operands of the query dialect put into SQL, with the dialect's rules of comparison.
#pragma once

#include "Lexico.h"
#include "Tabela.h"

namespace plataforma::jet {

/// Reads the words of a query from left to right. Every name is resolved against the table, every text and
/// name is quoted anew: nothing of the query reaches the engine as it was typed.
class Leitor {
public:
    explicit Leitor(const QString &consulta) : m_consulta(consulta), m_palavras(SeparaPalavras(consulta)) {}

    [[nodiscard]] const Palavra &Atual() const { return m_palavras[m_pos]; }
    [[nodiscard]] bool NoFim() const { return Atual().tipo == Palavra::Fim; }
    void Avanca();
    /// Whether the current word is this keyword or sign; a name in brackets is never a keyword.
    [[nodiscard]] bool Ve(const char *palavra) const;
    /// Takes the keyword or sign when it is there.
    bool Aceita(const char *palavra);
    /// @throws RuntimeError 3075 when it is not there
    void Exige(const char *palavra);
    /// Takes a name that is no keyword. @throws RuntimeError 3075
    QString ExigeNome();
    [[noreturn]] void Recusa(const QString &motivo = {}) const;
    /// The same for a name that stands in its place, but is not in the store.
    [[noreturn]] void RecusaNome(const QString &motivo) const;

private:
    QString m_consulta;
    QList<Palavra> m_palavras;
    qsizetype m_pos = 0;
};

/// Reads expressions over the fields of one table.
class Expressao {
public:
    /// @param apelido the other name of the table in this query, may be empty
    Expressao(Leitor &leitor, const Tabela &tabela, const QString &apelido)
        : m_leitor(leitor), m_tabela(tabela), m_apelido(apelido)
    {
    }
    /// A condition, in SQL. @throws RuntimeError 3075
    QString Condicao();
    /// A field or function by which rows are sorted, in SQL. @throws RuntimeError 3075
    QString Ordem();
    /// A field, as an index of the table's columns. @throws RuntimeError 3075
    qsizetype Campo();

private:
    enum class Tipo { Logico, Texto, Numero, Campo };
    struct Parte {
        QString sql;
        Tipo tipo = Tipo::Texto;
        bool direto = false; // field: "=" may use its own order; text: has no letters
    };

    Parte Ou();
    Parte E();
    Parte Nao();
    Parte Comparacao();
    Parte Operando();
    Parte Funcao(const QString &nome);
    Parte Literal();
    Parte Compara(const Parte &a, const QString &sinal, const Parte &b) const;
    Parte Entre(const Parte &valor);
    Parte EmLista(const Parte &valor);
    Parte Parecido(const Parte &valor);
    void ExigeTipo(const Parte &parte, bool logico) const;
    void ExigeComparaveis(const Parte &a, const Parte &b) const;

    Leitor &m_leitor;
    const Tabela &m_tabela;
    QString m_apelido;
    int m_fundo = 0;
};

} // namespace plataforma::jet
