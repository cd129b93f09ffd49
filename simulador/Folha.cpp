// Bytes of free texts into lines of a sheet.
#include "Folha.h"

#include "Palavras.h"

namespace simulador {

std::optional<int> LarguraDoModo(int modo)
{
    switch (modo) {
    case 1:
        return 136;
    case 2:
        return 96;
    case 3:
        return 80;
    default:
        return std::nullopt;
    }
}

bool Folha::Acrescenta(const QByteArray &texto, int modo, bool enfase)
{
    const auto largura = LarguraDoModo(modo);
    if (!largura)
        return false;
    if (*largura != m_largura || enfase)
        TerminaParcial(); // a line has one pitch and one weight
    m_largura = *largura;
    m_enfase = enfase;
    AcrescentaCru(texto);
    if (enfase)
        TerminaParcial(); // emphasis is the title's alone
    m_enfase = false;
    return true;
}

void Folha::AcrescentaCru(const QByteArray &bytes)
{
    for (const char byte : bytes)
        Recebe(byte);
}

void Folha::Recebe(char byte)
{
    if (m_escape) {
        m_escape = false;
        if (byte == '@')
            Inicializa();
        else if (byte == 'I')
            Inverte();
        return;
    }
    if (byte == '\n' && m_quebrou) {
        m_quebrou = false;
    } else if (byte == '\n') {
        TerminaLinha();
    } else if (byte == '\f') {
        TerminaFolha();
    } else if (byte == '\x1B') {
        m_escape = true;
    } else if (static_cast<unsigned char>(byte) >= ' ' && byte != '\x7F') {
        m_quebrou = false;
        m_parcial += byte;
        if (m_parcial.size() == m_largura) {
            TerminaLinha();
            m_quebrou = true;
        }
    }
}

void Folha::Inverte()
{
    TerminaParcial();
    m_invertida = !m_invertida;
}

void Folha::Inicializa()
{
    TerminaParcial();
    m_largura = 80;
    m_enfase = false;
    m_invertida = false;
}

void Folha::TerminaLinha()
{
    QString texto = TextoDe850(m_parcial);
    while (texto.endsWith(QLatin1Char(' ')))
        texto.chop(1);
    m_linhas.push_back({texto, m_largura, m_enfase, m_invertida});
    m_parcial.clear();
    m_quebrou = false;
}

void Folha::TerminaParcial()
{
    if (!m_parcial.isEmpty())
        TerminaLinha();
    m_quebrou = false;
}

void Folha::TerminaFolha()
{
    TerminaParcial();
    if (m_linhas.empty())
        return;
    Documento documento;
    documento.tipo = Documento::Tipo::Folha;
    documento.linhas = std::move(m_linhas);
    m_linhas.clear();
    m_prontas.push_back(std::move(documento));
}

std::vector<Documento> Folha::Tira()
{
    TerminaFolha();
    m_escape = false;
    std::vector<Documento> prontas = std::move(m_prontas);
    m_prontas.clear();
    return prontas;
}

} // namespace simulador
