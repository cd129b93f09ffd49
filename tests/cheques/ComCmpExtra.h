// Fixture of the tests of the screen that programs the extra fields: opened by its menu entry, worked by
// keys.
#pragma once

#include "ComEntrada.h"

#include <QRadioButton>

namespace teste {

class ComCmpExtra : public ComEntrada {
protected:
    /// Starts the program with these keys in section FrenteInfo and opens the screen by the menu.
    void AbreCom(const QString &chaves)
    {
        if (!chaves.isEmpty())
            Ini("[FrenteInfo]\n" + chaves);
        Abre();
        AbreExtra();
    }
    void AbreExtra() { AbrePeloMenu("CpoX", "CmpExtra"); }
    void AtivaExtra() { AtivaTela("CmpExtra"); }
    [[nodiscard]] QList<QWidget *> Abertas() { return ComEntrada::Abertas("CmpExtra"); }
    [[nodiscard]] QWidget &Extra() { return Aberta("CmpExtra"); }
    [[nodiscard]] QRadioButton *Opcao(int i)
    {
        return apoio::Controle<QRadioButton>(Extra(), QString("CmdNumCampo(%1)").arg(i));
    }
    /// Numbers of the options that are on, from 0.
    [[nodiscard]] std::string Ligadas()
    {
        std::string ligadas;
        for (int i = 0; i < 3; ++i)
            ligadas += Opcao(i)->isChecked() ? std::to_string(i) : "";
        return ligadas;
    }
    void Escolhe(int i)
    {
        QTest::mouseClick(Opcao(i), Qt::LeftButton, {}, QPoint(8, Opcao(i)->height() / 2));
    }
    /// "line,column" of the two boxes.
    [[nodiscard]] std::string Posicao()
    {
        return (apoio::Texto(Extra(), "PosText(0)") + ',' + apoio::Texto(Extra(), "PosText(1)"))
            .toStdString();
    }
    /// Goes to a box by a click and types, in place of what stood there.
    void DigitaNaPosicao(int lado, const QString &texto)
    {
        apoio::ClicaEm(Extra(), QString("PosText(%1)").arg(lado));
        ASSERT_EQ(apoio::Foco(Extra()), QString("PosText(%1)").arg(lado));
        apoio::Tecla(Extra(), Qt::Key_A, Qt::ControlModifier);
        apoio::Tecla(Extra(), Qt::Key_Delete);
        apoio::Digita(Extra(), texto);
    }
    void Programa(const QString &linha, const QString &coluna)
    {
        DigitaNaPosicao(0, linha);
        DigitaNaPosicao(1, coluna);
        apoio::ClicaEm(Extra(), "BtnCmd(0)");
    }
    [[nodiscard]] std::string Chave(const QString &chave)
    {
        const QString valor = m_escritorio.Chave("FrenteInfo", chave);
        return valor.isNull() ? "none" : valor.toStdString();
    }
    /// The six keys, line and column of each field.
    [[nodiscard]] std::string Chaves()
    {
        std::string todas;
        for (const char *chave :
             {"Campo00Lin", "Campo00Col", "Campo01Lin", "Campo01Col", "Campo02Lin", "Campo02Col"})
            todas += (todas.empty() ? "" : " ") + Chave(chave);
        return todas;
    }
    void EsperaCaixaDeErro(const char *texto) { EsperaCaixa(texto, "Erro", QMessageBox::Warning); }
};

} // namespace teste
