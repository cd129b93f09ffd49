// Fixture of the tests that the registers of cities and payees share: what each has of its own.
#pragma once

#include "ComCadastro.h"

#include <QGroupBox>
#include <QLabel>

namespace teste {

/// What one of the two has of its own.
struct CasoDeNomes {
    Registro registro;
    QString titulo;
    QString rotuloDoNome;
    int tamanho; ///< of the name
    QString textoDaImpressao;
    std::string lista;
    std::string codigo, nome; ///< of the row 1
    std::string selecione;
};
inline void PrintTo(const CasoDeNomes &c, std::ostream *os)
{
    *os << c.registro.tela.toStdString();
}
inline const CasoDeNomes kCasoCidade{kCidade,
                                     "Cadastro de Cidades",
                                     "Cidade:",
                                     20,
                                     "Imprimir ",
                                     "00020 - São Paulo|00003 - Recife|00100 - Açu",
                                     "00003",
                                     "Recife",
                                     "[Erro] Selecione uma Cidade..."};
inline const CasoDeNomes kCasoFavorec{kFavorec,
                                      "Cadastro de Favorecidos",
                                      "Nome:",
                                      47,
                                      "Imprimir",
                                      "00123 - José Luís|00007 - Ana|00045 - Bento",
                                      "00007",
                                      "Ana",
                                      "[Erro] Selecione um favorecido..."};

class CodigoENomeDeCada : public ComCodigoENome, public testing::WithParamInterface<CasoDeNomes> {
protected:
    CodigoENomeDeCada() : ComCodigoENome(GetParam().registro) {}
    [[nodiscard]] const CasoDeNomes &C() const { return GetParam(); }
    [[nodiscard]] bool Pergunta() const { return C().registro.tela == "Favorec"; }
    /// Presses a button; where the device is asked for, it gets nothing.
    void ApertaSemAparelho(int botao)
    {
        if (Pergunta() && botao != Alterar && botao != Fechar)
            m_caixas->Responde(QMessageBox::No);
        Aperta(botao);
    }
    /// The boxes that came, but the question for the device.
    [[nodiscard]] std::string Avisos()
    {
        QStringList avisos;
        for (const apoio::Caixa &caixa : m_caixas->Vistas())
            if (caixa.titulo != "Comando QX70")
                avisos << '[' + caixa.titulo + "] " + caixa.texto;
        return avisos.join('|').toStdString();
    }
    [[nodiscard]] bool TemTexto(const QString &texto)
    {
        for (const auto *rotulo : Cadastro().findChildren<QLabel *>())
            if (rotulo->text() == texto && rotulo->isVisible())
                return true;
        for (const auto *grupo : Cadastro().findChildren<QGroupBox *>())
            if (grupo->title() == texto && grupo->isVisible())
                return true;
        return false;
    }
    [[nodiscard]] std::string Nomes()
    {
        return Linhas("SELECT Codigo, Nome FROM " + C().registro.tabela + " ORDER BY rowid");
    }
};

inline const auto kNomeDoCadastro = [](const auto &caso) { return caso.param.registro.tela.toStdString(); };

} // namespace teste
