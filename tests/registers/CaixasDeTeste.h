// The boxes of the bank register as plain texts.
#pragma once

#include "registers/CaixasDoBanco.h"

#include <array>
#include <QStringList>
#include <string>

namespace teste {

class CaixasDeTeste final : public registers::CaixasDoBanco {
public:
    CaixasDeTeste(const QString &codigo, const QString &nome)
    {
        m_textos[0] = codigo;
        m_textos[1] = nome;
    }
    [[nodiscard]] QString Caixa(int indice) const override { return m_textos.at(indice); }
    void PoeCaixa(int indice, const QString &texto) override
    {
        m_textos.at(indice) = texto;
        ++escritas;
    }
    /// Lines, columns and distances: boxes 2 to 14.
    [[nodiscard]] std::string Numeros() const
    {
        return QStringList(m_textos.cbegin() + 2, m_textos.cend()).join(' ').toStdString();
    }
    int escritas = 0;

private:
    std::array<QString, 15> m_textos;
};

} // namespace teste
