// Fixture of the device tests: the recording library in a temporary folder, and doubles of what it needs.
#pragma once

#include "device/Impressora.h"
#include "plataforma/basico/Texto.h"
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <string>
#include <vector>

namespace device {

inline void PrintTo(const FalhaDaBiblioteca::Causa &causa, std::ostream *os)
{
    *os << "cause " << static_cast<int>(causa);
}

} // namespace device

namespace teste {

/// Box that a rule asked for, how many library calls had been made by then, and whether one was under way.
struct Caixa {
    QString texto;
    nucleo::Botoes botoes;
    nucleo::Icone icone;
    QString titulo;
    qsizetype chamadasAntes;
    bool bloqueada;
};

/// The calls that the recording library wrote, and the script that it answers from.
class Gravacao {
public:
    Gravacao()
    {
        qputenv("QX70_GRAVADORA_SAIDA", QFile::encodeName(m_pasta.filePath("chamadas.txt")));
        qputenv("QX70_GRAVADORA_ROTEIRO", QFile::encodeName(m_pasta.filePath("roteiro.txt")));
    }
    [[nodiscard]] QStringList Chamadas() const
    {
        QFile arquivo(m_pasta.filePath("chamadas.txt"));
        if (!arquivo.open(QIODevice::ReadOnly))
            return {};
        return QString::fromLatin1(arquivo.readAll()).split('\n', Qt::SkipEmptyParts);
    }
    void Roteiro(const QByteArray &linhas) const
    {
        QFile arquivo(m_pasta.filePath("roteiro.txt"));
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        ASSERT_EQ(arquivo.write(linhas), linhas.size());
    }

private:
    QTemporaryDir m_pasta;
};

/// Notes how many calls had been made at each end of a bracket.
class OcupadoGravado final : public nucleo::Ocupado {
public:
    explicit OcupadoGravado(const Gravacao &gravacao) : m_gravacao(gravacao) {}
    void Comeca() override
    {
        ++nivel;
        passos.push_back("comeca em " + std::to_string(m_gravacao.Chamadas().size()));
    }
    void Termina() override
    {
        --nivel;
        passos.push_back("termina em " + std::to_string(m_gravacao.Chamadas().size()));
    }
    std::vector<std::string> passos;
    int nivel = 0;

private:
    const Gravacao &m_gravacao;
};

class MensagensGravadas final : public nucleo::Mensagens {
public:
    MensagensGravadas(const Gravacao &gravacao, const OcupadoGravado &ocupado)
        : m_gravacao(gravacao), m_ocupado(ocupado)
    {
    }
    nucleo::Resposta MsgBox(const QString &texto, nucleo::Botoes botoes, nucleo::Icone icone,
                            const QString &titulo) override
    {
        caixas.push_back({texto, botoes, icone, titulo, m_gravacao.Chamadas().size(), m_ocupado.nivel > 0});
        return nucleo::Resposta::Ok;
    }
    std::vector<Caixa> caixas;

private:
    const Gravacao &m_gravacao;
    const OcupadoGravado &m_ocupado;
};

/// Keeps the values shown, the changes of colour, and how many library calls had been made before each run.
class IndicadorGravado final : public nucleo::Indicador {
public:
    explicit IndicadorGravado(const Gravacao &gravacao) : m_gravacao(gravacao) {}
    void Valor(int porCento) override
    {
        if (porCento == 0)
            chamadasAntes.push_back(m_gravacao.Chamadas().size());
        valores.push_back(porCento);
    }
    void Cor(std::uint32_t bgr) override
    {
        cor = bgr;
        trocas.push_back({valores.empty() ? -1 : valores.back(), bgr});
    }
    struct Troca {
        int valor; ///< value shown when the colour was set, -1 before the first
        std::uint32_t cor;
        bool operator==(const Troca &) const = default;
    };
    std::vector<int> valores;
    std::vector<Troca> trocas;
    std::vector<qsizetype> chamadasAntes;
    std::uint32_t cor = 0;

private:
    const Gravacao &m_gravacao;
};

class ComGravadora : public testing::Test {
protected:
    static void PoeBiblioteca(const QTemporaryDir &pasta, const char *origem = GRAVADORA)
    {
        ASSERT_TRUE(
            QFile::copy(QString::fromLocal8Bit(origem), pasta.filePath(device::kArquivoDaBiblioteca)));
    }
    static void PoeArquivo(const QTemporaryDir &pasta, const QByteArray &conteudo)
    {
        QFile arquivo(pasta.filePath(device::kArquivoDaBiblioteca));
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
        ASSERT_EQ(arquivo.write(conteudo), conteudo.size());
    }

    Gravacao m_gravacao;
    OcupadoGravado m_ocupado{m_gravacao};
    MensagensGravadas m_mensagens{m_gravacao, m_ocupado};
    IndicadorGravado m_indicador{m_gravacao};
    QTemporaryDir m_pastaApp;
    QTemporaryDir m_pastaExe;
    QStringList m_pastas{m_pastaApp.path(), m_pastaExe.path()};
};

/// With the library in place.
class ComImpressora : public ComGravadora {
protected:
    void SetUp() override { PoeBiblioteca(m_pastaApp); }

    device::Impressora m_impressora{m_pastas, m_mensagens, m_indicador, m_ocupado};
    QString m_porta = QStringLiteral("COM2");
};

} // namespace teste

inline void PrintTo(const QString &texto, std::ostream *os)
{
    *os << '"' << texto.toStdString() << '"';
}
