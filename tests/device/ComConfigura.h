// Fixture of the tests of the device's configuration: the program started and the screen opened by its menu
// entry.
#pragma once

#include "ComEntrada.h"

#include <QRadioButton>

namespace teste {

class ComConfigura : public ComEntrada {
protected:
    /// Starts the program with the currency in the settings and opens the screen.
    void AbreTela()
    {
        Ini("m_sg=Real\nm_pl=Reais\n");
        Abre();
        AbreConfigura();
    }
    void AbreConfigura() { AbrePeloMenu("Conf_Qx70", "Configura"); }
    /// Closes it and opens it anew.
    void Reabre()
    {
        Clica("SSCommand1");
        ASSERT_FALSE(EstaAberta());
        AbreConfigura();
    }
    [[nodiscard]] bool EstaAberta() { return !Abertas("Configura").isEmpty(); }
    [[nodiscard]] QWidget &Configura() { return Aberta("Configura"); }
    [[nodiscard]] std::string Campo(const char *nome)
    {
        return apoio::Texto(Configura(), nome).toStdString();
    }
    [[nodiscard]] QRadioButton *Opcao(const QString &nome)
    {
        return apoio::Controle<QRadioButton>(Configura(), nome);
    }
    /// Indices of the ports' options that are on.
    [[nodiscard]] std::string Ligadas()
    {
        std::string ligadas;
        for (int i = 0; i < 4; ++i)
            ligadas += Opcao(QString("Option3D3(%1)").arg(i))->isChecked() ? std::to_string(i) : "";
        return ligadas;
    }
    [[nodiscard]] std::string FocoNela() { return apoio::Foco(Configura()).toStdString(); }
    void TeclaNela(Qt::Key tecla, Qt::KeyboardModifiers mais = Qt::NoModifier)
    {
        apoio::Tecla(Configura(), tecla, mais);
    }
    void Clica(const QString &nome) { apoio::ClicaEm(Configura(), nome); }
    void Escolhe(const QString &nome)
    {
        QTest::mouseClick(Opcao(nome), Qt::LeftButton, {}, QPoint(8, Opcao(nome)->height() / 2));
    }
    void VaiNelaPara(const QString &nome)
    {
        apoio::Controle<QWidget>(Configura(), nome)->setFocus(Qt::TabFocusReason);
        ASSERT_EQ(FocoNela(), nome.toStdString());
    }
    /// Goes to a box and types, in place of what stood there.
    void DigitaNela(const QString &nome, const QString &texto)
    {
        Clica(nome);
        ASSERT_EQ(FocoNela(), nome.toStdString());
        TeclaNela(Qt::Key_A, Qt::ControlModifier);
        TeclaNela(Qt::Key_Delete);
        apoio::Digita(Configura(), texto);
    }
    void EsperaRecusa(const QString &texto, const QString &titulo, const std::string &foco)
    {
        EsperaCaixa(texto, titulo, QMessageBox::Warning);
        EXPECT_EQ(FocoNela(), foco);
        EXPECT_EQ(m_gravadora.Chamadas(), QStringList()) << "the port is left untouched";
    }
    [[nodiscard]] std::string Chave(const QString &chave)
    {
        const QString valor = m_escritorio.Chave("Sistema", chave);
        return valor.isNull() ? "none" : valor.toStdString();
    }
};

} // namespace teste
