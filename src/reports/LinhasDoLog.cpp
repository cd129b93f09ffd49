// See LinhasDoLog.h. The one pass looks at the bytes as they are stored: a text for each of a million values
// would cost more than reading them.
#include "reports/LinhasDoLog.h"

#include "plataforma/basico/Numero.h"
#include "plataforma/basico/RuntimeError.h"
#include "plataforma/jet/Dynaset.h"
#include "reports/LinhaDoLog.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <QStringView>
#include <QVarLengthArray>

namespace reports {

namespace {

enum Coluna : int { StCancel, Nrch, Banco, VCh, Data, Favor, Index };
const QStringList kCampos = {QStringLiteral("STCancel"), QStringLiteral("NRCH"), QStringLiteral("Banco"),
                             QStringLiteral("V_CH"),     QStringLiteral("DATA"), QStringLiteral("FAVOR"),
                             QStringLiteral("Index")};
constexpr qsizetype kNomeados = 10; // rows named in one message

bool Digito(char c)
{
    return c >= '0' && c <= '9';
}

// The value as the program writes it: digits, and a comma among or behind them. Up to 15 digits are exact,
// and so is their division by a power of ten; any other text is for CDbl.
std::optional<double> ValorComoGravado(std::string_view bytes)
{
    constexpr std::size_t kExatos = 15;
    static constexpr std::array<double, kExatos + 1> kDez = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                             1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    if (bytes.empty() || !Digito(bytes.front()) || bytes.size() > kExatos + 1)
        return std::nullopt;
    std::int64_t numero = 0;
    std::size_t digitos = 0;
    std::size_t antes = 0;
    bool virgula = false;
    for (const char c : bytes) {
        if (c == ',' && !virgula) {
            virgula = true;
            antes = digitos;
        } else if (Digito(c)) {
            numero = numero * 10 + (c - '0');
            ++digitos;
        } else {
            return std::nullopt;
        }
    }
    if (digitos > kExatos)
        return std::nullopt;
    return static_cast<double>(numero) / kDez[virgula ? digitos - antes : 0];
}

// A date as the program writes it, "dd/mm/yy", on a day that every month has.
bool DataComoGravada(std::string_view bytes)
{
    if (bytes.size() != 8 || bytes[2] != '/' || bytes[5] != '/')
        return false;
    for (const std::size_t i : {0, 1, 3, 4, 6, 7})
        if (!Digito(bytes[i]))
            return false;
    const int dia = (bytes[0] - '0') * 10 + (bytes[1] - '0');
    const int mes = (bytes[3] - '0') * 10 + (bytes[4] - '0');
    return dia >= 1 && dia <= 28 && mes >= 1 && mes <= 12;
}

std::optional<double> Valor(const plataforma::Rows &linhas, qsizetype linha)
{
    if (const auto valor = ValorComoGravado(linhas.Bytes(linha, VCh)))
        return valor;
    const QString texto = linhas.Text(linha, VCh);
    return plataforma::IsNumeric(texto) ? std::optional(plataforma::CDbl(texto)) : std::nullopt;
}

bool DataRuim(const plataforma::Rows &linhas, qsizetype linha)
{
    if (DataComoGravada(linhas.Bytes(linha, Data)))
        return false;
    ChequeDoLog cheque;
    cheque.data = linhas.Text(linha, Data);
    return DataIlegivel(cheque);
}

// The texts of a row behind one another in one place: one made for each of them would cost more than the
// line.
class TextosDaLinha {
public:
    TextosDaLinha(const plataforma::Rows &linhas, qsizetype linha)
    {
        linhas.EachOf(linha, [&](int coluna, std::string_view bytes) {
            if (!JuntaLatinos(bytes))
                Junta(linhas.Text(linha, coluna));
            m_fins.at(static_cast<std::size_t>(coluna) + 1) = m_letras.size();
        });
    }
    QStringView operator[](Coluna coluna) const
    {
        const qsizetype inicio = m_fins[static_cast<std::size_t>(coluna)];
        return {m_letras.data() + inicio, m_fins[static_cast<std::size_t>(coluna) + 1] - inicio};
    }

private:
    // UTF-8 of characters up to U+00FF, which is nearly every text; nothing is added for any other one.
    bool JuntaLatinos(std::string_view bytes)
    {
        const qsizetype antes = m_letras.size();
        m_letras.resize(antes + static_cast<qsizetype>(bytes.size()));
        char16_t *letra = m_letras.data() + antes;
        const auto *byte = reinterpret_cast<const unsigned char *>(bytes.data());
        const auto *const fim = byte + bytes.size();
        while (byte != fim) {
            if (*byte < 0x80) {
                *letra++ = *byte++;
            } else if ((*byte == 0xC2 || *byte == 0xC3) && fim - byte > 1 && (byte[1] & 0xC0U) == 0x80) {
                *letra++ = static_cast<char16_t>((byte[0] & 0x03U) << 6U | (byte[1] & 0x3FU));
                byte += 2;
            } else {
                m_letras.resize(antes);
                return false;
            }
        }
        m_letras.resize(letra - m_letras.data());
        return true;
    }
    void Junta(QStringView texto) { m_letras.append(texto.utf16(), texto.size()); }

    QVarLengthArray<char16_t, 256> m_letras;
    std::array<qsizetype, 8> m_fins{};
};

// "0000000003: "abc"", a line each.
QString Nomes(const plataforma::Rows &linhas, const std::vector<qsizetype> &quais, int coluna)
{
    QString nomes;
    const auto quantas = static_cast<qsizetype>(quais.size());
    for (qsizetype i = 0; i < std::min(quantas, kNomeados); ++i) {
        const qsizetype linha = quais[static_cast<std::size_t>(i)];
        nomes += QStringLiteral("\n%1: \"%2\"").arg(linhas.Text(linha, Index), linhas.Text(linha, coluna));
    }
    if (quantas > kNomeados)
        nomes += QStringLiteral("\ne mais %1.").arg(quantas - kNomeados);
    return nomes;
}

} // namespace

LinhasDoLog::LinhasDoLog(const plataforma::Dynaset &log) : m_linhas(log.GetRows(kCampos))
{
    Percorre();
}

void LinhasDoLog::Percorre()
{
    const qsizetype quantas = m_linhas.Count();
    for (qsizetype linha = 0; linha < quantas; ++linha) {
        const auto valor = Valor(m_linhas, linha);
        if (!valor)
            m_semValor.push_back(linha);
        else if (m_linhas.Bytes(linha, StCancel) != "C")
            m_total += *valor;
        if (DataRuim(m_linhas, linha))
            m_semData.push_back(linha);
    }
}

QString LinhasDoLog::Linha(int numero) const
{
    // The rows left out before it are those that stand before its place even with the others out.
    qsizetype linha = numero;
    for (const qsizetype fora : m_semValor) {
        if (fora > linha)
            break;
        ++linha;
    }
    const TextosDaLinha textos(m_linhas, linha);
    return MontaLinhaDoLog({textos[StCancel], textos[Nrch], textos[Banco], textos[VCh], textos[Data],
                            textos[Favor], textos[Index]});
}

QString LinhasDoLog::Aviso() const
{
    QString aviso;
    if (!m_semValor.empty())
        aviso +=
            QStringLiteral("O valor destes cheques não é um número; eles ficam fora da lista e do total:") +
            Nomes(m_linhas, m_semValor, VCh);
    if (!m_semData.empty()) {
        if (!aviso.isEmpty())
            aviso += QLatin1Char('\n');
        aviso += QStringLiteral("A data destes cheques não é uma data; a lista a mostra como está gravada:") +
                 Nomes(m_linhas, m_semData, Data);
    }
    return aviso;
}

} // namespace reports
