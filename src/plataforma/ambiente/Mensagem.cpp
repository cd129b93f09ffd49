// The message between two copies, written and read: head, count, then number, length and UTF-8 of each field.
#include "plataforma/ambiente/Mensagem.h"

#include <QStringDecoder>
#include <QtEndian>

namespace plataforma {
namespace {

constexpr char kMarca[] = {'Q', 'X', '7', 'H', 1}; // the last byte is the version of the format
constexpr qsizetype kTamanhoMarca = sizeof(kMarca);
static_assert(kTamanhoMarca + 4 == kTamanhoCabeca);

/// A text cut to the limit, never between the two halves of one character.
QStringView CortaTexto(QStringView texto)
{
    if (texto.size() <= kMaxTextoCampo)
        return texto;
    const bool parte = texto[kMaxTextoCampo - 1].isHighSurrogate();
    return texto.first(kMaxTextoCampo - (parte ? 1 : 0));
}

/// Reads the body front to back; once something is missing, `inteiro` stays false.
struct Leitor {
    QByteArrayView resto;
    bool inteiro = true;

    QByteArrayView Bytes(qsizetype n)
    {
        if (n > resto.size()) {
            inteiro = false;
            resto = {};
            return {};
        }
        const QByteArrayView parte = resto.first(n);
        resto = resto.sliced(n);
        return parte;
    }
    int Numero8() { return static_cast<int>(Numero<quint8>()); }
    int Numero16() { return static_cast<int>(Numero<quint16>()); }

private:
    template <typename T> T Numero()
    {
        const QByteArrayView bytes = Bytes(sizeof(T));
        return inteiro ? qFromBigEndian<T>(bytes.data()) : T{0};
    }
};

/// One text; false when the bytes are no UTF-8 or no text that a command line could hold.
bool LeTexto(Leitor &leitor, QString &texto)
{
    const QByteArrayView bytes = leitor.Bytes(leitor.Numero16());
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    texto = decoder.decode(bytes);
    return leitor.inteiro && !decoder.hasError() && texto.size() <= kMaxTextoCampo &&
           !texto.contains(QChar(0));
}

Leitura LeCorpo(QByteArrayView corpo)
{
    Leitura invalida{EstadoMensagem::Invalida, {}};
    Leitor leitor{corpo};
    Campos campos;
    const int quantos = leitor.Numero8();
    if (quantos > kMaxCampos)
        return invalida;
    for (int i = 0; i < quantos; ++i) {
        const int indice = leitor.Numero8();
        QString texto;
        if (!LeTexto(leitor, texto))
            return invalida;
        campos.append({indice, texto});
    }
    if (!leitor.inteiro || !leitor.resto.isEmpty())
        return invalida;
    return {EstadoMensagem::Completa, campos};
}

template <typename T> void Junta(QByteArray &destino, T numero)
{
    const T grande = qToBigEndian(numero);
    destino.append(reinterpret_cast<const char *>(&grande), sizeof(grande));
}

} // namespace

QByteArray MontaMensagem(const Campos &campos)
{
    if (campos.size() > kMaxCampos)
        return {};
    QByteArray corpo;
    Junta(corpo, static_cast<quint8>(campos.size()));
    for (const auto &[indice, texto] : campos) {
        if (indice < 0 || indice > kMaxIndiceCampo)
            return {};
        const QByteArray utf8 = CortaTexto(texto).toUtf8();
        Junta(corpo, static_cast<quint8>(indice));
        Junta(corpo, static_cast<quint16>(utf8.size()));
        corpo.append(utf8);
    }
    QByteArray mensagem(kMarca, kTamanhoMarca);
    Junta(mensagem, static_cast<quint32>(corpo.size()));
    return mensagem + corpo;
}

Leitura LeMensagem(const QByteArray &recebido)
{
    const qsizetype conferidos = qMin(recebido.size(), kTamanhoMarca);
    if (QByteArrayView(recebido).first(conferidos) != QByteArrayView(kMarca, conferidos))
        return {EstadoMensagem::Invalida, {}};
    if (recebido.size() < kTamanhoCabeca)
        return {};
    const quint32 tamanho = qFromBigEndian<quint32>(recebido.constData() + kTamanhoMarca);
    if (tamanho == 0 || tamanho > kMaxCorpo ||
        recebido.size() - kTamanhoCabeca > static_cast<qsizetype>(tamanho))
        return {EstadoMensagem::Invalida, {}};
    if (recebido.size() - kTamanhoCabeca < static_cast<qsizetype>(tamanho))
        return {};
    return LeCorpo(QByteArrayView(recebido).sliced(kTamanhoCabeca));
}

} // namespace plataforma
