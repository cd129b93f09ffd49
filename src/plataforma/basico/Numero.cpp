// Numbers read from texts, by Brazilian rules whatever the machine's locale.
#include "plataforma/basico/Numero.h"

#include "plataforma/basico/Decimal.h"
#include "plataforma/basico/RuntimeError.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <QStringView>
#include <string>

namespace plataforma {

namespace {

bool EDigito(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/// The blanks of Windows-1252.
bool EBranco(QChar c)
{
    return c == QLatin1Char(' ') || (c.unicode() >= 9 && c.unicode() <= 13) || c.unicode() == 0xA0;
}

/// A number as it was found in a text, without its sign.
struct Achado {
    std::string inteiros;
    std::string decimais;
    std::string expoente; ///< with its sign, empty when there is none

    [[nodiscard]] bool TemDigito() const { return !inteiros.empty() || !decimais.empty(); }
};

/// Whether the number lies above what a double holds, given that it lies outside.
bool AcimaDoLimite(const Achado &achado)
{
    const std::string digitos = achado.inteiros + achado.decimais;
    const auto primeiro = digitos.find_first_not_of('0');
    const auto ordem =
        static_cast<std::int64_t>(achado.inteiros.size()) - static_cast<std::int64_t>(primeiro);
    const bool menos = !achado.expoente.empty() && achado.expoente[0] == '-';
    std::int64_t expoente = 0;
    const char *fim = achado.expoente.data() + achado.expoente.size();
    const char *inicio = achado.expoente.data() + (achado.expoente.empty() ? 0 : 1);
    if (std::from_chars(inicio, fim, expoente).ec == std::errc::result_out_of_range) {
        return !menos;
    }
    return ordem + (menos ? -expoente : expoente) > 0;
}

/// The nearest double; none when the number is too great for one. Too small a number is 0.
std::optional<double> ValorDe(const Achado &achado)
{
    std::string texto = achado.inteiros + "." + achado.decimais;
    if (!achado.expoente.empty()) {
        texto += "e" + achado.expoente;
    }
    double valor = 0;
    const auto resultado = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
    if (resultado.ec != std::errc::result_out_of_range) {
        return valor;
    }
    return AcimaDoLimite(achado) ? std::nullopt : std::optional<double>(0);
}

/// A walk over a text, one sign at a time.
class Leitor {
public:
    explicit Leitor(QStringView texto) : m_texto(texto) {}
    [[nodiscard]] bool Fim() const { return m_i >= m_texto.size(); }
    [[nodiscard]] QChar Olha(qsizetype adiante = 0) const
    {
        return m_i + adiante < m_texto.size() ? m_texto[m_i + adiante] : QChar();
    }
    void Avanca(qsizetype n = 1) { m_i += n; }
    bool Come(QStringView sinal)
    {
        const bool achou = m_texto.sliced(std::min(m_i, m_texto.size())).startsWith(sinal);
        m_i += achou ? sinal.size() : 0;
        return achou;
    }
    void PulaBrancos()
    {
        while (!Fim() && EBranco(Olha())) {
            Avanca();
        }
    }
    std::string Digitos()
    {
        std::string digitos;
        for (; EDigito(Olha()); Avanca()) {
            digitos += Olha().toLatin1();
        }
        return digitos;
    }
    /// The exponent that begins here ("e" or "d"), empty and nothing eaten when there is no whole one.
    std::string Expoente()
    {
        const QChar letra = Olha().toLower();
        if (letra != QLatin1Char('e') && letra != QLatin1Char('d')) {
            return {};
        }
        const bool sinal = Olha(1) == QLatin1Char('+') || Olha(1) == QLatin1Char('-');
        if (!EDigito(Olha(sinal ? 2 : 1))) {
            return {};
        }
        const std::string prefixo = sinal && Olha(1) == QLatin1Char('-') ? "-" : "+";
        Avanca(sinal ? 2 : 1);
        return prefixo + Digitos();
    }
    /// The digits behind "&H" or "&O" that begin here; none when there are none, too many, or another sign.
    std::optional<std::uint64_t> OutraBase()
    {
        const QChar letra = Olha(1).toLower();
        if (Olha() != QLatin1Char('&') || (letra != QLatin1Char('h') && letra != QLatin1Char('o'))) {
            return std::nullopt;
        }
        const int base = letra == QLatin1Char('h') ? 16 : 8;
        const std::string digitos = m_texto.sliced(m_i + 2).toString().toLatin1().toStdString();
        std::uint64_t valor = 0;
        const auto lido = std::from_chars(digitos.data(), digitos.data() + digitos.size(), valor, base);
        if (lido.ec != std::errc()) {
            return std::nullopt;
        }
        Avanca(2 + (lido.ptr - digitos.data()));
        return valor;
    }

private:
    QStringView m_texto;
    qsizetype m_i = 0;
};

/// Reads an amount by Brazilian rules, with its sign, brackets and currency sign.
class LeitorBrasileiro {
public:
    explicit LeitorBrasileiro(QStringView texto) : m_leitor(texto) {}

    std::optional<double> Le()
    {
        LeAdornos(true);
        if (!m_sinal && !m_abre && !m_moeda) {
            if (const auto valor = m_leitor.OutraBase()) {
                m_leitor.PulaBrancos();
                return m_leitor.Fim() ? std::optional<double>(static_cast<double>(*valor)) : std::nullopt;
            }
        }
        const Achado achado = LeAlgarismos();
        LeAdornos(false);
        if (!achado.TemDigito() || !m_leitor.Fim() || m_abre != m_fecha) {
            return std::nullopt;
        }
        const auto valor = ValorDe(achado);
        return valor && m_menos && *valor != 0 ? std::optional<double>(-*valor) : valor;
    }

private:
    /// What may stand before or behind the digits, each thing once, in any order, with blanks between.
    void LeAdornos(bool antes)
    {
        m_leitor.PulaBrancos();
        while (LeSinal(antes) || LeParentese(antes) || LeMoeda()) {
            m_leitor.PulaBrancos();
        }
    }
    bool LeSinal(bool antes)
    {
        const bool menos = m_leitor.Olha() == QLatin1Char('-');
        const bool sinal = menos || m_leitor.Olha() == QLatin1Char('+');
        if (!sinal || m_sinal || (!antes && m_abre)) {
            return false;
        }
        m_sinal = true;
        m_menos = m_menos || menos;
        m_leitor.Avanca();
        return true;
    }
    bool LeParentese(bool antes)
    {
        bool &ja = antes ? m_abre : m_fecha;
        if (ja || !m_leitor.Come(antes ? u"(" : u")")) {
            return false;
        }
        ja = true;
        m_menos = true;
        return true;
    }
    bool LeMoeda()
    {
        if (m_moeda || !m_leitor.Come(u"R$")) {
            return false;
        }
        m_moeda = true;
        return true;
    }
    /// Digits and exponent. A point behind a first digit is skipped wherever it stands; the comma counts
    /// once.
    Achado LeAlgarismos()
    {
        Achado achado;
        bool virgula = false;
        for (;;) {
            (virgula ? achado.decimais : achado.inteiros) += m_leitor.Digitos();
            if (achado.TemDigito() && m_leitor.Come(u".")) {
                continue;
            }
            if (virgula || !m_leitor.Come(u",")) {
                break;
            }
            virgula = true;
        }
        if (achado.TemDigito()) {
            achado.expoente = m_leitor.Expoente();
        }
        return achado;
    }

    Leitor m_leitor;
    bool m_sinal = false;
    bool m_menos = false;
    bool m_abre = false;
    bool m_fecha = false;
    bool m_moeda = false;
};

QString SemBrancos(const QString &texto)
{
    QString limpo = texto;
    limpo.removeIf(
        [](QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n'); });
    return limpo;
}

/// "&HFFFF" is the 16-bit number -1, "&HFFFFFFFF" the 32-bit one.
double ComSinalDeMaquina(std::uint64_t valor)
{
    if (valor <= 0xFFFF) {
        return static_cast<std::int16_t>(valor);
    }
    return valor <= 0xFFFFFFFF ? static_cast<std::int32_t>(valor) : static_cast<double>(valor);
}

} // namespace

double Val(const QString &texto)
{
    const QString limpo = SemBrancos(texto);
    Leitor leitor(limpo);
    if (const auto valor = leitor.OutraBase()) {
        return ComSinalDeMaquina(*valor);
    }
    const bool menos = leitor.Come(u"-");
    if (!menos) {
        leitor.Come(u"+");
    }
    Achado achado;
    achado.inteiros = leitor.Digitos();
    if (leitor.Come(u".")) {
        achado.decimais = leitor.Digitos();
    }
    if (!achado.TemDigito()) {
        return 0;
    }
    achado.expoente = leitor.Expoente();
    const double valor = ValorDe(achado).value_or(std::numeric_limits<double>::max());
    return menos && valor != 0 ? -valor : valor;
}

bool IsNumeric(const QString &texto)
{
    return LeitorBrasileiro(texto).Le().has_value();
}

double CDbl(const QString &texto)
{
    if (const auto valor = LeitorBrasileiro(texto).Le()) {
        return *valor;
    }
    throw RuntimeError(ErrTypeMismatch, QStringLiteral("\"%1\" não é um número.").arg(texto));
}

qint64 Centavos(double valor)
{
    const Decimal redondo = Arredonda(DecimalDe(valor), 2);
    const std::string digitos = redondo.Inteiros() + redondo.Casa(1) + redondo.Casa(2);
    qint64 centavos = 0;
    const auto lido = std::from_chars(digitos.data(), digitos.data() + digitos.size(), centavos);
    if (lido.ec == std::errc::result_out_of_range) {
        centavos = std::numeric_limits<qint64>::max();
    }
    return redondo.negativo ? -centavos : centavos;
}

} // namespace plataforma
