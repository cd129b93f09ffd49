// Words of the query dialect: names, texts in quotes, numbers and signs.
#include "Lexico.h"

#include "Erros.h"

namespace plataforma::jet {

namespace {

constexpr qsizetype MAIOR_CONSULTA = 65536;

class Separador {
public:
    explicit Separador(const QString &consulta) : m_consulta(consulta) {}

    QList<Palavra> Separa()
    {
        QList<Palavra> palavras;
        do {
            palavras.append(Proxima());
        } while (palavras.constLast().tipo != Palavra::Fim);
        return palavras;
    }

private:
    [[nodiscard]] QChar Atual() const { return m_pos < m_consulta.size() ? m_consulta[m_pos] : QChar(); }

    Palavra Proxima()
    {
        while (Atual().isSpace())
            ++m_pos;
        const qsizetype inicio = m_pos;
        const QChar c = Atual();
        if (m_pos >= m_consulta.size() || c == ';')
            return {Palavra::Fim, c == ';' ? QString(c) : QString(), inicio};
        if (c == '\'' || c == '"')
            return {Palavra::Texto, AteAspas(c), inicio};
        if (c == '[')
            return {Palavra::NomeEntreColchetes, AteColchete(), inicio};
        if (c.isLetter() || c == '_')
            return {Palavra::Nome, Enquanto([](QChar x) { return x.isLetterOrNumber() || x == '_'; }),
                    inicio};
        if (EDigito(c))
            return {Palavra::Numero, Numero(), inicio};
        return {Palavra::Sinal, Sinal(), inicio};
    }

    static bool EDigito(QChar c) { return c >= '0' && c <= '9'; }

    template <typename Condicao> QString Enquanto(Condicao vale)
    {
        const qsizetype inicio = m_pos;
        while (m_pos < m_consulta.size() && vale(m_consulta[m_pos]))
            ++m_pos;
        return m_consulta.mid(inicio, m_pos - inicio);
    }

    // Two quotes in a row stand for one inside the text.
    QString AteAspas(QChar aspas)
    {
        QString texto;
        for (++m_pos; m_pos < m_consulta.size(); ++m_pos) {
            if (m_consulta[m_pos] == aspas) {
                ++m_pos;
                if (Atual() != aspas || m_pos >= m_consulta.size())
                    return texto;
            }
            if (m_consulta[m_pos].isNull())
                break;
            texto += m_consulta[m_pos];
        }
        LancaConsultaRecusada("texto sem as aspas finais.", m_consulta);
    }

    QString AteColchete()
    {
        const qsizetype fim = m_consulta.indexOf(']', m_pos);
        if (fim < 0)
            LancaConsultaRecusada("nome sem o colchete final.", m_consulta);
        QString nome = m_consulta.mid(m_pos + 1, fim - m_pos - 1);
        m_pos = fim + 1;
        return nome;
    }

    QString Numero()
    {
        QString numero = Enquanto(EDigito);
        if (Atual() == '.' && m_pos + 1 < m_consulta.size() && EDigito(m_consulta[m_pos + 1])) {
            ++m_pos;
            numero += '.' + Enquanto(EDigito);
        }
        return numero;
    }

    QString Sinal()
    {
        for (const char *sinal : {"<>", "<=", ">=", "<", ">", "=", "(", ")", ",", ".", "*", "-"}) {
            const QLatin1String texto(sinal);
            if (QStringView(m_consulta).sliced(m_pos).startsWith(texto)) {
                m_pos += texto.size();
                return texto;
            }
        }
        LancaConsultaRecusada(QString("o sinal \"%1\" não é aceito.").arg(Atual()), m_consulta);
    }

    const QString &m_consulta;
    qsizetype m_pos = 0;
};

} // namespace

QList<Palavra> SeparaPalavras(const QString &consulta)
{
    if (consulta.size() > MAIOR_CONSULTA)
        LancaConsultaRecusada("o texto é longo demais.", consulta);
    return Separador(consulta).Separa();
}

} // namespace plataforma::jet
