// Format: numbers and texts put into a pattern, by Brazilian rules.
#include "plataforma/basico/Formato.h"

#include "plataforma/basico/Data.h"
#include "plataforma/basico/Decimal.h"
#include "plataforma/basico/Numero.h"
#include "plataforma/basico/Texto.h"

#include <algorithm>
#include <optional>
#include <QDate>
#include <QTime>
#include <string>
#include <vector>

namespace plataforma {

namespace {

/// One character of a pattern; a literal one was quoted or stands behind "\".
struct Sinal {
    QChar c;
    bool literal = false;

    [[nodiscard]] bool E(char sinal) const { return !literal && c == QLatin1Char(sinal); }
    [[nodiscard]] bool Algarismo() const { return E('#') || E('0'); }
};

std::vector<Sinal> SinaisDe(const QString &padrao)
{
    std::vector<Sinal> sinais;
    bool aspas = false;
    for (qsizetype i = 0; i < padrao.size(); ++i) {
        const QChar c = padrao[i];
        if (c == QLatin1Char('"')) {
            aspas = !aspas;
        } else if (!aspas && c == QLatin1Char('\\') && i + 1 < padrao.size()) {
            sinais.push_back({padrao[++i], true});
        } else {
            sinais.push_back({c, aspas});
        }
    }
    return sinais;
}

bool TemVagas(const std::vector<Sinal> &sinais)
{
    return std::any_of(sinais.begin(), sinais.end(), [](const Sinal &sinal) { return sinal.E('@'); });
}

/// Fills the "@" slots from the right, or from the left where a "!" stands. Characters beyond the slots are
/// all shown: before the first slot, or behind the last one.
QString PreencheVagas(const QString &texto, const std::vector<Sinal> &sinais)
{
    const auto vaga = [](const Sinal &sinal) { return sinal.E('@'); };
    const qsizetype vagas = std::count_if(sinais.begin(), sinais.end(), vaga);
    const bool daEsquerda =
        std::any_of(sinais.begin(), sinais.end(), [](const Sinal &sinal) { return sinal.E('!'); });
    const qsizetype folga = daEsquerda ? 0 : std::max<qsizetype>(0, vagas - texto.size());
    const qsizetype sobra = std::max<qsizetype>(0, texto.size() - vagas);
    QString saida;
    qsizetype ordem = 0;
    qsizetype usado = 0;
    for (const Sinal &sinal : sinais) {
        if (sinal.E('!')) {
            continue;
        }
        if (!vaga(sinal)) {
            saida += sinal.c;
            continue;
        }
        ++ordem;
        const bool comSobra = ordem == (daEsquerda ? vagas : 1);
        const qsizetype cabem = 1 + (comSobra ? sobra : 0);
        const bool vazia = ordem <= folga || usado >= texto.size();
        saida += vazia ? QStringLiteral(" ") : texto.mid(usado, cabem);
        usado += vazia ? 0 : cabem;
    }
    return saida;
}

/// A number pattern, parted at its decimal sign.
struct Modelo {
    std::vector<Sinal> inteiros;
    std::vector<Sinal> decimais;
    bool ponto = false;
    bool agrupa = false; ///< a comma among the digit signs, wherever it stands, groups by three

    [[nodiscard]] int Casas() const
    {
        return static_cast<int>(std::count_if(decimais.begin(), decimais.end(),
                                              [](const Sinal &sinal) { return sinal.Algarismo(); }));
    }
};

Modelo ModeloDe(const std::vector<Sinal> &sinais)
{
    Modelo modelo;
    bool algarismo = false;
    for (const Sinal &sinal : sinais) {
        if (sinal.E(',')) {
            modelo.agrupa = modelo.agrupa || (algarismo && !modelo.ponto);
        } else if (sinal.E('.') && !modelo.ponto) {
            modelo.ponto = true;
        } else {
            algarismo = algarismo || sinal.Algarismo();
            (modelo.ponto ? modelo.decimais : modelo.inteiros).push_back(sinal);
        }
    }
    return modelo;
}

/// How many digits the integer part shows at least: the digit signs from the first "0" on.
std::size_t Obrigados(const std::vector<Sinal> &inteiros)
{
    const auto zero =
        std::find_if(inteiros.begin(), inteiros.end(), [](const Sinal &sinal) { return sinal.E('0'); });
    return static_cast<std::size_t>(
        std::count_if(zero, inteiros.end(), [](const Sinal &sinal) { return sinal.Algarismo(); }));
}

/// Writes digits from the right to the left, with a point behind each third one.
class EscritorDeInteiros {
public:
    EscritorDeInteiros(std::string digitos, bool agrupa) : m_digitos(std::move(digitos)), m_agrupa(agrupa) {}
    void Algarismo()
    {
        if (m_escritos >= m_digitos.size()) {
            return;
        }
        if (m_agrupa && m_escritos > 0 && m_escritos % 3 == 0) {
            m_avesso += QLatin1Char('.');
        }
        m_avesso += QLatin1Char(m_digitos[m_digitos.size() - 1 - m_escritos]);
        ++m_escritos;
    }
    void Resto()
    {
        while (m_escritos < m_digitos.size()) {
            Algarismo();
        }
    }
    void Literal(QChar c) { m_avesso += c; }
    [[nodiscard]] QString Texto() const
    {
        QString texto = m_avesso;
        std::reverse(texto.begin(), texto.end());
        return texto;
    }

private:
    std::string m_digitos;
    bool m_agrupa;
    std::size_t m_escritos = 0;
    QString m_avesso;
};

/// The integer part. Digits beyond the digit signs are all shown, at the first sign.
QString Inteiros(const Decimal &numero, const Modelo &modelo)
{
    std::string digitos = numero.Inteiros();
    const std::size_t obrigados = Obrigados(modelo.inteiros);
    if (digitos.size() < obrigados) {
        digitos.insert(0, obrigados - digitos.size(), '0');
    }
    EscritorDeInteiros escritor(std::move(digitos), modelo.agrupa);
    auto faltam = std::count_if(modelo.inteiros.begin(), modelo.inteiros.end(),
                                [](const Sinal &sinal) { return sinal.Algarismo(); });
    if (faltam == 0 && modelo.ponto) {
        escritor.Resto();
    }
    for (auto sinal = modelo.inteiros.rbegin(); sinal != modelo.inteiros.rend(); ++sinal) {
        if (!sinal->Algarismo()) {
            escritor.Literal(sinal->c);
        } else if (--faltam == 0) {
            escritor.Resto();
        } else {
            escritor.Algarismo();
        }
    }
    return escritor.Texto();
}

/// The decimal part behind the comma: up to the last digit that is no zero, or the last "0" of the pattern.
QString Decimais(const Decimal &numero, const Modelo &modelo)
{
    int mostra = std::max(0, static_cast<int>(numero.digitos.size()) - numero.ponto);
    int casa = 0;
    for (const Sinal &sinal : modelo.decimais) {
        casa += sinal.Algarismo() ? 1 : 0;
        mostra = sinal.E('0') ? std::max(mostra, casa) : mostra;
    }
    QString texto;
    casa = 0;
    for (const Sinal &sinal : modelo.decimais) {
        if (!sinal.Algarismo()) {
            texto += sinal.c;
        } else if (++casa <= mostra) {
            texto += QLatin1Char(numero.Casa(casa));
        }
    }
    return texto;
}

QString FormataNumero(double valor, const std::vector<Sinal> &sinais)
{
    const Modelo modelo = ModeloDe(sinais);
    const Decimal numero = Arredonda(DecimalDe(valor), modelo.Casas());
    QString texto = Inteiros(numero, modelo);
    // An amount that rounds to zero shows no sign. On purpose: a pattern without a decimal sign keeps it, so
    // that -0,4 under "000" is "-000".
    const bool zeroComSinal = !modelo.ponto && Obrigados(modelo.inteiros) > 0;
    if (modelo.ponto) {
        texto += QLatin1Char(',') + Decimais(numero, modelo);
    }
    return numero.negativo && (!numero.Zero() || zeroComSinal) ? QLatin1Char('-') + texto : texto;
}

/// The number that a text stands for: an amount, the days of a date since 30/12/1899, or the part of a day
/// of a time ("12:30").
std::optional<double> NumeroDe(const QString &texto)
{
    if (IsNumeric(texto)) {
        return CDbl(texto);
    }
    if (IsDate(texto)) {
        return static_cast<double>(DateDiff(QDate(1899, 12, 30), CVDate(texto)));
    }
    for (const auto *forma : {"H:m", "H:m:s"}) {
        const QTime hora = QTime::fromString(Trim(texto), QLatin1String(forma));
        if (hora.isValid()) {
            return hora.msecsSinceStartOfDay() / 86400000.0;
        }
    }
    return std::nullopt;
}

} // namespace

QString Format(double valor, const QString &padrao)
{
    const std::vector<Sinal> sinais = SinaisDe(padrao);
    if (sinais.empty() || TemVagas(sinais)) {
        const QString texto = TextoDoNumero(valor);
        return sinais.empty() ? texto : PreencheVagas(texto, sinais);
    }
    return FormataNumero(valor, sinais);
}

QString Format(const QString &texto, const QString &padrao)
{
    const std::vector<Sinal> sinais = SinaisDe(padrao);
    if (TemVagas(sinais)) {
        return PreencheVagas(texto, sinais);
    }
    const auto numero = sinais.empty() ? std::nullopt : NumeroDe(texto);
    return numero ? FormataNumero(*numero, sinais) : texto;
}

} // namespace plataforma
