// The 61 characters that the device keeps elsewhere than Windows does. Codes are those of code page 850.
#include "device/Acentos.h"

#include "plataforma/basico/Texto.h"
#include <algorithm>
#include <array>

namespace device {

namespace {

struct Codigo {
    char16_t letra;
    int codigo;
};

// Ring letters, ligatures and stroked letters are absent on purpose: they go out unchanged.
constexpr std::array<Codigo, 61> kCodigos{{
    {u'À', 0xB7}, {u'Á', 0xB5}, {u'Â', 0xB6}, {u'Ã', 0xC7}, {u'Ä', 0x8E}, {u'Ç', 0x80}, {u'È', 0xD4},
    {u'É', 0x90}, {u'Ê', 0xD2}, {u'Ë', 0xD3}, {u'Ì', 0xDE}, {u'Í', 0xD6}, {u'Î', 0xD7}, {u'Ï', 0xD8},
    {u'Ñ', 0xA5}, {u'Ò', 0xE3}, {u'Ó', 0xE0}, {u'Ô', 0xE2}, {u'Õ', 0xE5}, {u'Ö', 0x99}, {u'Ù', 0xEB},
    {u'Ú', 0xE9}, {u'Û', 0xEA}, {u'Ü', 0x9A}, {u'Ý', 0xED}, {u'à', 0x85}, {u'á', 0xA0}, {u'â', 0x83},
    {u'ã', 0xC6}, {u'ä', 0x84}, {u'ç', 0x87}, {u'è', 0x8A}, {u'é', 0x82}, {u'ê', 0x88}, {u'ë', 0x89},
    {u'ì', 0x8D}, {u'í', 0xA1}, {u'î', 0x8C}, {u'ï', 0x8B}, {u'ñ', 0xA4}, {u'ò', 0x95}, {u'ó', 0xA2},
    {u'ô', 0x93}, {u'õ', 0xE4}, {u'ö', 0x94}, {u'ù', 0x97}, {u'ú', 0xA3}, {u'û', 0x96}, {u'ü', 0x81},
    {u'ý', 0xEC}, {u'ÿ', 0x98}, {u'¹', 0xFB}, {u'²', 0xFD}, {u'³', 0xFC}, {u'£', 0x9C}, {u'¢', 0xBD},
    {u'¬', 0xAA}, {u'§', 0xF5}, {u'ª', 0xA6}, {u'º', 0xA7}, {u'°', 0xF8},
}};

QChar LetraDoByte(int byte)
{
    return plataforma::FromAnsi(QByteArray(1, static_cast<char>(byte))).at(0);
}

} // namespace

int CodigoDispositivo(QChar letra)
{
    const auto achado =
        std::find_if(kCodigos.begin(), kCodigos.end(), [letra](const Codigo &c) { return letra == c.letra; });
    return achado == kCodigos.end() ? -1 : achado->codigo;
}

QString RemoveAcentos(const QString &texto)
{
    QString resultado = texto;
    for (QChar &letra : resultado) {
        if (const int codigo = CodigoDispositivo(letra); codigo != -1)
            letra = LetraDoByte(codigo);
    }
    return resultado;
}

} // namespace device
