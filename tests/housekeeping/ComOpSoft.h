// Fixture of the tests of the options screen: the program started and the screen opened by its menu entry.
#pragma once

#include "ComEntrada.h"

#include <QCheckBox>
#include <QScrollBar>

namespace teste {

class ComOpSoft : public ComEntrada {
protected:
    /// Starts the program with these keys in section Opcoes and opens the screen by the menu.
    void AbreCom(const QString &chaves = {})
    {
        if (!chaves.isEmpty())
            Ini("[Opcoes]\n" + chaves);
        Abre();
        AbreOpcoes();
    }
    void AbreOpcoes() { AbrePeloMenu("MOpSoft", "OpSoft"); }
    [[nodiscard]] bool EstaAberta() { return !Abertas("OpSoft").isEmpty(); }
    [[nodiscard]] QWidget &OpSoft() { return Aberta("OpSoft"); }
    [[nodiscard]] QScrollBar *Barra(int i)
    {
        return apoio::Controle<QScrollBar>(OpSoft(), QString("VScroll01(%1)").arg(i));
    }
    [[nodiscard]] QCheckBox *Marca(const char *nome) { return apoio::Controle<QCheckBox>(OpSoft(), nome); }
    [[nodiscard]] std::string Prazo(int i)
    {
        return apoio::Texto(OpSoft(), QString("Text01(%1)").arg(i)).toStdString();
    }
    [[nodiscard]] std::string FocoNela() { return apoio::Foco(OpSoft()).toStdString(); }
    void TeclaNela(Qt::Key tecla, Qt::KeyboardModifiers mais = Qt::NoModifier)
    {
        apoio::Tecla(OpSoft(), tecla, mais);
    }
    void VaiNelaPara(const QString &nome)
    {
        apoio::Controle<QWidget>(OpSoft(), nome)->setFocus(Qt::TabFocusReason);
        ASSERT_EQ(FocoNela(), nome.toStdString());
    }
    /// Goes to a box and types, in place of what stood there.
    void DigitaPrazo(int i, const QString &texto)
    {
        apoio::ClicaEm(OpSoft(), QString("Text01(%1)").arg(i));
        ASSERT_EQ(FocoNela(), "Text01(" + std::to_string(i) + ')');
        TeclaNela(Qt::Key_A, Qt::ControlModifier);
        TeclaNela(Qt::Key_Delete);
        apoio::Digita(OpSoft(), texto);
    }
    void ClicaNaMarca(const char *nome)
    {
        QCheckBox *marca = Marca(nome);
        QTest::mouseClick(marca, Qt::LeftButton, {}, QPoint(8, marca->height() / 2));
    }
    /// Every option of the screen becomes another one.
    void MudaTudo()
    {
        DigitaPrazo(0, "31");
        DigitaPrazo(1, "41");
        DigitaPrazo(2, "56");
        ClicaNaMarca("CheckImpInv");
        ClicaNaMarca("CheckUsarNum");
    }
    void Confirma() { apoio::ClicaEm(OpSoft(), "BtnCmd(0)"); }
    /// PeriodoRelExc PeriodoCopExc NumChkPgRel UsarImpInv NumCObrig
    [[nodiscard]] std::string Memoria()
    {
        std::string memoria;
        for (const int valor : {Dados().PeriodoRelExc, Dados().PeriodoCopExc, Dados().NumChkPgRel,
                                Dados().UsarImpInv, Dados().NumCObrig})
            memoria += (memoria.empty() ? "" : " ") + std::to_string(valor);
        return memoria;
    }
    /// The section as it stands in the file, its keys in their order.
    [[nodiscard]] std::string Secao()
    {
        return m_escritorio.LeIni().section("[Opcoes]\r\n", 1).trimmed().replace("\r\n", " ").toStdString();
    }
    const QString m_todas = "PeriodoRelExc=12\nPeriodoCopExc=34\nNumChkPgRel=56\nUsarImpInv=0\nNumCObrig=1\n";
};

} // namespace teste
