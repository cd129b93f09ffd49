// Fixture of the tests of the search popup: opened by F3 in a field of the cheque.
#pragma once

#include "ComCadastro.h"

namespace teste {

/// A field that has the popup, and what it looks in.
struct Campo {
    QString controle; ///< of Main
    Registro registro;
    int tipo;
    std::string lista;
    std::string escolha; ///< what the row 1 hands back
};
inline void PrintTo(const Campo &c, std::ostream *os)
{
    *os << c.registro.tabela.toStdString();
}
inline const Campo kCampoBanco{"Text1(0)", kBancos, 2, "237 - BANCO DOIS|001 - BANCO UM|341 - CAIXA TRES",
                               "001"};
inline const Campo kCampoFavorecido{"Text1(2)", kFavorec, 0, "00123 - José Luís|00007 - Ana|00045 - Bento",
                                    "Ana"};
inline const Campo kCampoCidade{"Text1(3)", kCidade, 1, "00020 - São Paulo|00003 - Recife|00100 - Açu",
                                "Recife"};

/// `Cadastro()`, `Aperta`, `ClicaNaLinha` and the like work on the popup here.
class ComPesquisa : public ComCadastro {
protected:
    ComPesquisa() : ComCadastro({"Pesquisa", {}, {}, -1, {}}) {}

    /// F3 in a field of the cheque; the popup may not stay.
    void F3(const QString &campo)
    {
        if (QApplication::activeWindow() != &Tela())
            Ativa();
        VaiPara(campo);
        Tecla(Qt::Key_F3);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// Starts the program and opens the popup from that field, which holds `texto`.
    void AbrePor(const Campo &campo, const QString &texto = {})
    {
        Abre();
        VaiPara(campo.controle);
        Poe(campo.controle, texto);
        F3(campo.controle);
        AtivaTela("Pesquisa");
    }
    void DuploClique(int linha)
    {
        AtivaEle();
        const QModelIndex onde = List1()->model()->index(linha, 0);
        List1()->scrollTo(onde);
        const QPoint ponto = List1()->visualRect(onde).center();
        QWidget *visor = List1()->viewport();
        QTest::mouseClick(visor, Qt::LeftButton, {}, ponto);
        QTest::mouseDClick(visor, Qt::LeftButton, {}, ponto);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void Fecha(int botao)
    {
        Aperta(botao);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// The popup is gone and Main has the focus again, in that field.
    void EsperaDeVolta(const Campo &campo, const std::string &texto)
    {
        EXPECT_FALSE(EstaAberto());
        Ativa();
        EXPECT_EQ(Foco(), campo.controle.toStdString());
        EXPECT_EQ(Texto(campo.controle), texto);
        EXPECT_EQ(Dados().TextoPesquisa.toStdString(), "") << "taken";
    }
};

/// Its buttons.
enum BotaoDaPesquisa : int { FechaEscolhendo = 0, Cancela = 1, Cadastra = 2 };

} // namespace teste
