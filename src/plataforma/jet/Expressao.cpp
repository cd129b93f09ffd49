// Conditions and operands of the query dialect put into SQL, with the dialect's rules of comparison.
#include "Expressao.h"

#include "Erros.h"
#include <algorithm>

namespace plataforma::jet {

namespace {

constexpr int MAIOR_FUNDO = 60; // brackets within brackets

const char *const RESERVADAS[] = {"select", "from", "where", "order", "by",    "asc",     "desc",
                                  "as",     "and",  "or",    "not",   "like",  "between", "in",
                                  "is",     "null", "union", "group", "having"};

struct FuncaoDoDialeto {
    const char *nome;
    const char *sql;
    int minimo;
    int maximo;
    bool numero; // its result is a number, otherwise a text
};

constexpr FuncaoDoDialeto FUNCOES[] = {
    {"left", "qx_left", 2, 2, false}, {"right", "qx_right", 2, 2, false},  {"mid", "qx_mid", 2, 3, false},
    {"trim", "qx_trim", 1, 1, false}, {"len", "qx_len", 1, 1, true},       {"val", "qx_val", 1, 1, true},
    {"cdbl", "qx_cdbl", 1, 1, true},  {"cvdate", "qx_cvdate", 1, 1, true},
};

QString ComOrdem(const QString &sql)
{
    return sql + " collate PORTUGUES";
}

bool SemLetras(const QString &texto)
{
    return std::all_of(texto.begin(), texto.end(),
                       [](QChar c) { return c.unicode() < 0x80 && !c.isLetter(); });
}

} // namespace

void Leitor::Avanca()
{
    if (!NoFim())
        ++m_pos;
}

bool Leitor::Ve(const char *palavra) const
{
    const Palavra &atual = Atual();
    return (atual.tipo == Palavra::Nome || atual.tipo == Palavra::Sinal) &&
           atual.texto.compare(QLatin1String(palavra), Qt::CaseInsensitive) == 0;
}

bool Leitor::Aceita(const char *palavra)
{
    if (!Ve(palavra))
        return false;
    Avanca();
    return true;
}

void Leitor::Exige(const char *palavra)
{
    if (!Aceita(palavra))
        Recusa(QString("falta \"%1\".").arg(QLatin1String(palavra)));
}

QString Leitor::ExigeNome()
{
    const Palavra atual = Atual();
    const bool reservada =
        std::any_of(std::begin(RESERVADAS), std::end(RESERVADAS), [this](auto r) { return Ve(r); });
    if ((atual.tipo != Palavra::Nome || reservada) && atual.tipo != Palavra::NomeEntreColchetes)
        Recusa();
    Avanca();
    return atual.texto;
}

void Leitor::Recusa(const QString &motivo) const
{
    const QString onde = NoFim() ? QString("o texto termina na posição %1.").arg(Atual().posicao + 1)
                                 : QString("\"%1\" não é esperado na posição %2.")
                                       .arg(Atual().texto.left(60))
                                       .arg(Atual().posicao + 1);
    LancaConsultaRecusada(motivo.isEmpty() ? onde : motivo + ' ' + onde, m_consulta);
}

void Leitor::RecusaNome(const QString &motivo) const
{
    LancaConsultaRecusada(motivo, m_consulta);
}

QString Expressao::Condicao()
{
    const Parte parte = Ou();
    ExigeTipo(parte, true);
    return parte.sql;
}

QString Expressao::Ordem()
{
    const Parte parte = Operando();
    ExigeTipo(parte, false);
    return parte.tipo == Tipo::Numero ? parte.sql : ComOrdem(parte.sql);
}

qsizetype Expressao::Campo()
{
    QString nome = m_leitor.ExigeNome();
    if (m_leitor.Aceita(".")) {
        const QString &dono = m_apelido.isEmpty() ? m_tabela.nome : m_apelido;
        if (nome.compare(dono, Qt::CaseInsensitive) != 0)
            m_leitor.RecusaNome(QString("a tabela \"%1\" não está na consulta.").arg(nome));
        nome = m_leitor.ExigeNome();
    }
    const qsizetype indice = m_tabela.IndiceDe(nome);
    if (indice < 0)
        m_leitor.RecusaNome(
            QString("o campo \"%1\" não existe em \"%2\".").arg(nome.left(60), m_tabela.nome));
    return indice;
}

Expressao::Parte Expressao::Ou()
{
    Parte parte = E();
    while (m_leitor.Aceita("or")) {
        const Parte outra = E();
        ExigeTipo(parte, true);
        ExigeTipo(outra, true);
        parte.sql += " or " + outra.sql;
    }
    return parte;
}

Expressao::Parte Expressao::E()
{
    Parte parte = Nao();
    while (m_leitor.Aceita("and")) {
        const Parte outra = Nao();
        ExigeTipo(parte, true);
        ExigeTipo(outra, true);
        parte.sql += " and " + outra.sql;
    }
    return parte;
}

Expressao::Parte Expressao::Nao()
{
    bool nega = false;
    bool algum = false;
    for (; m_leitor.Aceita("not"); algum = true)
        nega = !nega;
    Parte parte = Comparacao();
    if (algum)
        ExigeTipo(parte, true);
    if (nega)
        parte.sql = "(not (" + parte.sql + "))";
    return parte;
}

Expressao::Parte Expressao::Comparacao()
{
    Parte valor = Operando();
    for (const char *sinal : {"=", "<>", "<=", ">=", "<", ">"}) {
        if (m_leitor.Aceita(sinal))
            return Compara(valor, sinal, Operando());
    }
    if (m_leitor.Aceita("is")) {
        ExigeTipo(valor, false);
        const bool nega = m_leitor.Aceita("not");
        m_leitor.Exige("null");
        return {valor.sql + (nega ? " is not null" : " is null"), Tipo::Logico};
    }
    const bool nega = m_leitor.Aceita("not");
    Parte parte = m_leitor.Aceita("like")      ? Parecido(valor)
                  : m_leitor.Aceita("between") ? Entre(valor)
                  : m_leitor.Aceita("in")      ? EmLista(valor)
                                               : valor;
    if (!nega)
        return parte;
    ExigeTipo(parte, true);
    return {"(not (" + parte.sql + "))", Tipo::Logico};
}

Expressao::Parte Expressao::Compara(const Parte &a, const QString &sinal, const Parte &b) const
{
    ExigeComparaveis(a, b);
    // A text without letters is the same in either case: the file's own index may answer.
    const bool direto = sinal == "=" &&
                        ((a.tipo == Tipo::Campo && b.tipo == Tipo::Texto) ||
                         (a.tipo == Tipo::Texto && b.tipo == Tipo::Campo)) &&
                        a.direto && b.direto;
    const bool numeros = a.tipo == Tipo::Numero || b.tipo == Tipo::Numero;
    const QString esquerda = direto || numeros ? a.sql : ComOrdem(a.sql);
    return {esquerda + ' ' + sinal + ' ' + b.sql, Tipo::Logico};
}

Expressao::Parte Expressao::Entre(const Parte &valor)
{
    const Parte menor = Operando();
    m_leitor.Exige("and");
    const Parte maior = Operando();
    ExigeComparaveis(valor, menor);
    ExigeComparaveis(valor, maior);
    const QString esquerda = valor.tipo == Tipo::Numero ? valor.sql : ComOrdem(valor.sql);
    return {'(' + esquerda + " between " + menor.sql + " and " + maior.sql + ')', Tipo::Logico};
}

Expressao::Parte Expressao::EmLista(const Parte &valor)
{
    m_leitor.Exige("(");
    QString lista;
    do {
        const Parte item = Operando();
        ExigeComparaveis(valor, item);
        lista += (lista.isEmpty() ? "" : ", ") + item.sql;
    } while (m_leitor.Aceita(","));
    m_leitor.Exige(")");
    const QString esquerda = valor.tipo == Tipo::Numero ? valor.sql : ComOrdem(valor.sql);
    return {esquerda + " in (" + lista + ')', Tipo::Logico};
}

Expressao::Parte Expressao::Parecido(const Parte &valor)
{
    const Parte padrao = Operando();
    ExigeTipo(valor, false);
    ExigeTipo(padrao, false);
    return {"qx_like(" + valor.sql + ", " + padrao.sql + ')', Tipo::Logico};
}

Expressao::Parte Expressao::Operando()
{
    if (m_leitor.Aceita("(")) {
        if (++m_fundo > MAIOR_FUNDO)
            m_leitor.Recusa("parênteses demais.");
        Parte parte = Ou();
        m_leitor.Exige(")");
        --m_fundo;
        if (parte.tipo == Tipo::Logico)
            parte.sql = '(' + parte.sql + ')';
        return parte;
    }
    const Palavra::Tipo tipo = m_leitor.Atual().tipo;
    if (tipo != Palavra::Nome && tipo != Palavra::NomeEntreColchetes)
        return Literal();
    const QString nome = m_leitor.Atual().texto;
    Leitor adiante = m_leitor;
    adiante.Avanca();
    if (tipo == Palavra::Nome && adiante.Aceita("(")) {
        m_leitor = adiante;
        return Funcao(nome);
    }
    const Coluna &coluna = m_tabela.colunas[Campo()];
    return {NomeCitado(coluna.nome), Tipo::Campo, coluna.comparaDireto};
}

Expressao::Parte Expressao::Literal()
{
    const bool negativo = m_leitor.Aceita("-");
    const Palavra palavra = m_leitor.Atual();
    if (palavra.tipo != Palavra::Numero && (palavra.tipo != Palavra::Texto || negativo))
        m_leitor.Recusa();
    m_leitor.Avanca();
    if (palavra.tipo == Palavra::Numero)
        return {(negativo ? "-" : "") + palavra.texto, Tipo::Numero};
    return {TextoCitado(palavra.texto), Tipo::Texto, SemLetras(palavra.texto)};
}

Expressao::Parte Expressao::Funcao(const QString &nome)
{
    const auto *funcao =
        std::find_if(std::begin(FUNCOES), std::end(FUNCOES), [&nome](const FuncaoDoDialeto &f) {
            return nome.compare(QLatin1String(f.nome), Qt::CaseInsensitive) == 0;
        });
    if (funcao == std::end(FUNCOES))
        m_leitor.Recusa(QString("a função \"%1\" não é conhecida.").arg(nome.left(60)));
    if (++m_fundo > MAIOR_FUNDO)
        m_leitor.Recusa("parênteses demais.");
    QString argumentos;
    int quantos = 0;
    do {
        const Parte argumento = Operando();
        ExigeTipo(argumento, false);
        argumentos += (quantos++ == 0 ? "" : ", ") + argumento.sql;
    } while (m_leitor.Aceita(","));
    m_leitor.Exige(")");
    --m_fundo;
    if (quantos < funcao->minimo || quantos > funcao->maximo)
        m_leitor.Recusa(QString("a função \"%1\" tem outro número de argumentos.").arg(nome));
    return {QLatin1String(funcao->sql) + '(' + argumentos + ')', funcao->numero ? Tipo::Numero : Tipo::Texto};
}

void Expressao::ExigeTipo(const Parte &parte, bool logico) const
{
    if ((parte.tipo == Tipo::Logico) != logico)
        m_leitor.Recusa(logico ? "falta uma comparação." : "uma comparação não é um valor.");
}

void Expressao::ExigeComparaveis(const Parte &a, const Parte &b) const
{
    ExigeTipo(a, false);
    ExigeTipo(b, false);
    if ((a.tipo == Tipo::Numero && b.tipo == Tipo::Texto) ||
        (a.tipo == Tipo::Texto && b.tipo == Tipo::Numero))
        m_leitor.Recusa("um número não se compara com um texto.");
}

} // namespace plataforma::jet
