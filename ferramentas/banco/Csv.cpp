// Reading and writing lines of fields: separator, quotes doubled inside quotes, line breaks kept inside them.
#include "Csv.h"

#include "plataforma/jet/Ordem.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace banco {

namespace {

constexpr char kAspas = '"';
constexpr std::size_t kPrimeiroBloco = std::size_t{64} << 10; // bytes; grows with the longest record

// What a byte asks of the field that it stands in.
enum Classe : std::uint8_t { kComum = 0, kPedeAspas = 1, kAlemDeAscii = 2, kProibido = 4 };

std::size_t Indice(char c)
{
    return static_cast<unsigned char>(c);
}

} // namespace

QString TextoDoErro(ErroCsv erro)
{
    switch (erro) {
    case ErroCsv::AspasNaoFechadas:
        return QStringLiteral(
            "as aspas abertas nesta linha não são fechadas; o resto do arquivo não foi lido");
    case ErroCsv::AspasNoMeio:
        return QStringLiteral(
            "há aspas no meio de um campo; ponha o campo todo entre aspas e dobre as de dentro");
    case ErroCsv::TextoDepoisDasAspas:
        return QStringLiteral("há texto depois das aspas que fecham um campo");
    case ErroCsv::LinhaVazia:
        return QStringLiteral("a linha está vazia");
    case ErroCsv::Nulo:
        return QStringLiteral("há um caractere nulo (byte 00)");
    case ErroCsv::CrSolto:
        return QStringLiteral("há um retorno de carro (byte 0D) sem a quebra de linha (byte 0A)");
    case ErroCsv::LongoDemais:
        return QStringLiteral("a linha tem mais de 1 MB");
    case ErroCsv::Nenhum:
        break;
    }
    return {};
}

LeitorCsv::LeitorCsv(Fonte fonte, char separador)
    : m_fonte(std::move(fonte)), m_separador(separador), m_bloco(kPrimeiroBloco)
{
    for (const char c : {separador, kAspas, '\r', '\n', '\0'})
        m_para[Indice(c)] = true;
}

bool LeitorCsv::Le(RegistroCsv &registro)
{
    registro.erro = ErroCsv::Nenhum;
    registro.linha = m_linha;
    for (;;) {
        const Passo passo = m_parado ? Passo::Acabou : Varre(registro);
        if (passo == Passo::Acabou)
            return false;
        if (passo == Passo::Inteiro)
            return true;
        if (passo == Passo::Errado) {
            SaltaLinha();
            return true;
        }
        if (!Enche()) {
            DesistePorTamanho(registro, passo);
            return true;
        }
    }
}

// Looks at the record from its beginning, as far as the bytes at hand go.
LeitorCsv::Passo LeitorCsv::Varre(RegistroCsv &registro)
{
    registro.campos.clear();
    m_comDobradas.clear();
    m_quebras = 0;
    m_p = m_inicio;
    if (m_p == m_fim)
        return m_acabou ? Passo::Acabou : Passo::FaltaDado;
    bool maisUm = true;
    while (maisUm) {
        const bool aspas = m_p < m_fim && m_bloco[m_p] == kAspas;
        Passo passo = aspas ? VarreEntreAspas(registro) : VarreSemAspas(registro);
        if (passo == Passo::Inteiro)
            passo = Separa(registro, maisUm);
        if (passo != Passo::Inteiro)
            return passo;
    }
    return Confirma(registro);
}

LeitorCsv::Passo LeitorCsv::VarreEntreAspas(RegistroCsv &registro)
{
    const char *const inicio = m_bloco.data() + m_p + 1;
    const char *const fim = m_bloco.data() + m_fim;
    const char *fecha = inicio;
    bool dobradas = false;
    for (;; fecha += 2) {
        fecha = static_cast<const char *>(std::memchr(fecha, kAspas, static_cast<std::size_t>(fim - fecha)));
        if (!fecha || (fecha + 1 == fim && !m_acabou)) {
            m_p = m_fim;
            return fecha || !m_acabou ? Passo::FaltaAspas : Erra(registro, ErroCsv::AspasNaoFechadas);
        }
        if (fecha + 1 == fim || fecha[1] != kAspas)
            break;
        dobradas = true;
    }
    const std::string_view texto(inicio, static_cast<std::size_t>(fecha - inicio));
    m_p = static_cast<std::size_t>(fecha + 1 - m_bloco.data());
    m_quebras += std::count(texto.begin(), texto.end(), '\n');
    if (dobradas)
        m_comDobradas.push_back(registro.campos.size());
    registro.campos.push_back({texto, true});
    return texto.find('\0') == std::string_view::npos ? Passo::Inteiro : Erra(registro, ErroCsv::Nulo);
}

LeitorCsv::Passo LeitorCsv::VarreSemAspas(RegistroCsv &registro)
{
    const std::size_t inicio = m_p;
    while (m_p < m_fim && !m_para[Indice(m_bloco[m_p])])
        ++m_p;
    registro.campos.push_back({{m_bloco.data() + inicio, m_p - inicio}, false});
    return Passo::Inteiro;
}

// What stands behind a field. `maisUm` tells whether another field follows.
LeitorCsv::Passo LeitorCsv::Separa(RegistroCsv &registro, bool &maisUm)
{
    maisUm = false;
    if (m_p == m_fim)
        return m_acabou ? Passo::Inteiro : Passo::FaltaDado;
    const char c = m_bloco[m_p];
    if (c == m_separador || c == '\n') {
        maisUm = c == m_separador;
        ++m_p;
        return Passo::Inteiro;
    }
    if (c == '\r')
        return TerminaComCr(registro);
    if (c == '\0')
        return Erra(registro, ErroCsv::Nulo);
    const bool depois = registro.campos.back().entreAspas;
    return Erra(registro, depois ? ErroCsv::TextoDepoisDasAspas : ErroCsv::AspasNoMeio);
}

LeitorCsv::Passo LeitorCsv::TerminaComCr(RegistroCsv &registro)
{
    if (m_p + 1 == m_fim && !m_acabou)
        return Passo::FaltaDado;
    if (m_p + 1 == m_fim || m_bloco[m_p + 1] != '\n')
        return Erra(registro, ErroCsv::CrSolto);
    m_p += 2;
    return Passo::Inteiro;
}

LeitorCsv::Passo LeitorCsv::Erra(RegistroCsv &registro, ErroCsv erro)
{
    registro.erro = erro;
    m_parado = erro == ErroCsv::AspasNaoFechadas;
    return Passo::Errado;
}

LeitorCsv::Passo LeitorCsv::Confirma(RegistroCsv &registro)
{
    const CampoCsv &primeiro = registro.campos.front();
    if (registro.campos.size() == 1 && primeiro.texto.empty() && !primeiro.entreAspas) {
        if (m_p == m_fim)
            return m_acabou ? Passo::Acabou : Passo::FaltaDado;
        registro.erro = ErroCsv::LinhaVazia;
    }
    for (const std::size_t campo : m_comDobradas)
        DesdobraAspas(registro.campos[campo].texto);
    m_inicio = m_p;
    m_linha += 1 + m_quebras;
    return Passo::Inteiro;
}

// In the block itself: these bytes are not looked at again.
void LeitorCsv::DesdobraAspas(std::string_view &texto)
{
    char *const inicio = m_bloco.data() + (texto.data() - m_bloco.data());
    char *para = inicio;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const char c = inicio[i];
        *para++ = c;
        i += c == kAspas;
    }
    texto = {inicio, static_cast<std::size_t>(para - inicio)};
}

// A record that does not fit into the block.
void LeitorCsv::DesistePorTamanho(RegistroCsv &registro, Passo passo)
{
    const bool aspas = passo == Passo::FaltaAspas;
    Erra(registro, aspas ? ErroCsv::AspasNaoFechadas : ErroCsv::LongoDemais);
    if (!aspas)
        SaltaLinha();
}

// Goes on behind the next line break from where the error was seen.
void LeitorCsv::SaltaLinha()
{
    m_linha += 1 + m_quebras;
    for (;;) {
        const char *const onde =
            static_cast<const char *>(std::memchr(m_bloco.data() + m_p, '\n', m_fim - m_p));
        m_inicio = onde ? static_cast<std::size_t>(onde + 1 - m_bloco.data()) : m_fim;
        m_p = m_inicio;
        if (onde || !Enche() || m_acabou)
            return;
    }
}

// Moves the record to the front and adds what the source gives. @return false when there is no room left
bool LeitorCsv::Enche()
{
    std::memmove(m_bloco.data(), m_bloco.data() + m_inicio, m_fim - m_inicio);
    m_p -= m_inicio;
    m_fim -= m_inicio;
    m_inicio = 0;
    if (m_fim == m_bloco.size() && m_fim == kMaiorRegistro)
        return false;
    if (m_fim == m_bloco.size())
        m_bloco.resize(2 * m_fim);
    const std::size_t lidos = m_fonte(m_bloco.data() + m_fim, m_bloco.size() - m_fim);
    m_fim += lidos;
    m_acabou = lidos == 0;
    return true;
}

EscritorCsv::EscritorCsv(char separador, Codificacao codificacao)
    : m_separador(separador), m_codificacao(codificacao)
{
    std::fill(m_classes.begin() + 0x80, m_classes.end(), kAlemDeAscii);
    for (const char c : {separador, kAspas, '\r', '\n'})
        m_classes[Indice(c)] = kPedeAspas;
    m_classes[0] = kProibido;
}

EscritorCsv::Falha EscritorCsv::Poe(std::string &saida, std::string_view texto) const
{
    unsigned classes = kComum;
    for (const char c : texto)
        classes |= m_classes[Indice(c)];
    if (texto.empty() || texto.front() == ' ' || texto.back() == ' ')
        classes |= kPedeAspas;
    if (classes != kComum)
        return PoeEspecial(saida, texto, classes);
    saida.append(texto);
    return Falha::Nenhuma;
}

EscritorCsv::Falha EscritorCsv::PoeEspecial(std::string &saida, std::string_view texto,
                                            unsigned classes) const
{
    if ((classes & kProibido) != 0)
        return Falha::Nulo;
    std::string comoLido;
    if ((classes & kAlemDeAscii) != 0 && AchaForaDeUtf8(texto) != std::string_view::npos) {
        comoLido = plataforma::jet::TextoGravado(texto).toStdString();
        texto = comoLido;
    }
    std::string ansi;
    if ((classes & kAlemDeAscii) != 0 && m_codificacao == Codificacao::Windows1252) {
        if (PoeEmAnsi(ansi, texto) != std::string_view::npos)
            return Falha::ForaDaPagina;
        texto = ansi;
    }
    if ((classes & kPedeAspas) == 0) {
        saida.append(texto);
        return Falha::Nenhuma;
    }
    saida += kAspas;
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t ate = std::min(texto.find(kAspas, i), texto.size() - 1) + 1;
        saida.append(texto, i, ate - i);
        if (texto[ate - 1] == kAspas)
            saida += kAspas;
        i = ate;
    }
    saida += kAspas;
    return Falha::Nenhuma;
}

} // namespace banco
