// Fixture of the tests of the adjustment screen: the screen alone, over boxes that are plain texts.
#pragma once

#include "apoio/Caixas.h"
#include "apoio/Controles.h"
#include "apoio/Escritorio.h"
#include "CaixasDeTeste.h"
#include "device/Impressora.h"
#include "nucleo/Sistema.h"
#include "plataforma/tela/Caixas.h"
#include "registers/Ajusta.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace teste {

class SemIndicador final : public nucleo::Indicador {
public:
    void Valor(int) override {}
    void Cor(std::uint32_t) override {}
};

class ComAjusta : public testing::Test {
protected:
    ~ComAjusta() override { delete m_tela; }

    /// Opens the screen on a buffer: lines `L1` to `L5`, columns `C1` to `C8`, parted by blanks.
    void AbreCom(const QString &linhas, const QString &colunas, const QString &codigo = "001")
    {
        delete m_tela;
        m_caixas = CaixasDeTeste(codigo, "BANCO EXEMPLO");
        Enche(m_sistema.AjusteL, linhas);
        Enche(m_sistema.AjusteC, colunas);
        m_tela = new registers::Ajusta(m_sistema, m_caixas, nullptr);
        m_tela->show();
        m_tela->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_tela));
    }
    void Abre(const QString &codigo = "001") { AbreCom(kLinhas, kColunas, codigo); }

    [[nodiscard]] QLineEdit *Campo(int i)
    {
        return apoio::Controle<QLineEdit>(*m_tela, QString("Text1(%1)").arg(i));
    }
    [[nodiscard]] QLabel *Celula(int i)
    {
        return apoio::Controle<QLabel>(*m_tela, QString("Label2(%1)").arg(i));
    }
    /// The thirteen cells of the read-out.
    [[nodiscard]] std::string Leitura()
    {
        QStringList textos;
        for (int i = 0; i < 13; ++i)
            textos << Celula(i)->text();
        return textos.join(' ').toStdString();
    }
    /// Numbers of the cells in the highlight colour, cyan; the rest must be pale yellow.
    [[nodiscard]] std::string Realcadas()
    {
        std::string realcadas;
        for (int i = 0; i < 13; ++i) {
            const QRgb cor = Celula(i)->palette().color(QPalette::Window).rgb();
            if (cor == qRgb(0, 255, 255))
                realcadas += (realcadas.empty() ? "" : " ") + std::to_string(i);
            else
                EXPECT_EQ(cor, qRgb(255, 255, 128)) << i;
        }
        return realcadas;
    }
    [[nodiscard]] std::string Foco() { return apoio::Foco(*m_tela).toStdString(); }
    void Seleciona(int i)
    {
        Campo(i)->setFocus(Qt::TabFocusReason);
        ASSERT_EQ(Foco(), "Text1(" + std::to_string(i) + ')');
    }
    void Tecla(Qt::Key tecla, int vezes = 1, Qt::KeyboardModifiers mais = Qt::NoModifier)
    {
        for (int i = 0; i < vezes; ++i)
            apoio::Tecla(*m_tela, tecla, mais);
    }
    void Clica(const QString &nome) { apoio::ClicaEm(*m_tela, nome); }
    void Ok() { Clica("Command3D1(0)"); }
    [[nodiscard]] bool Aberta() const { return m_tela && m_tela->isVisible(); }

    const QString kLinhas = "001 005 007 010 013";
    const QString kColunas = "092 017 009 011 050 031 040 065";

    apoio::Escritorio m_escritorio;
    apoio::Caixas m_respostas;
    plataforma::Caixas m_mensagens;
    plataforma::OcupadoDaTela m_ocupado;
    SemIndicador m_indicador;
    apoio::RelogioParado m_relogio{QDate(2003, 2, 1)};
    device::Impressora m_impressora{{}, m_mensagens, m_indicador, m_ocupado};
    nucleo::Sistema m_sistema{m_escritorio.Pasta(), m_mensagens, m_ocupado, m_relogio, m_impressora};
    CaixasDeTeste m_caixas{"001", "BANCO EXEMPLO"};
    QPointer<registers::Ajusta> m_tela;

private:
    template <std::size_t N> static void Enche(std::array<QString, N> &numeros, const QString &textos)
    {
        const QStringList lista = textos.split(' ');
        numeros = {};
        for (qsizetype i = 0; i < lista.size(); ++i)
            numeros.at(static_cast<std::size_t>(i)) = lista[i];
    }
};

inline const auto kNomeDoCaso = [](const auto &caso) { return caso.param.nome; };

} // namespace teste
