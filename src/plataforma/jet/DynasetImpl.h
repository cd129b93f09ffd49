// The state of a dynaset: its set of rows, the current row, and the row being written.
#pragma once

#include "Dynaset.h"
#include "Fonte.h"

namespace plataforma {

class Dynaset::Impl {
public:
    /// @throws RuntimeError 3075, 3050
    Impl(std::shared_ptr<jet::Conexao> conexao, jet::Consulta consulta);

    [[nodiscard]] bool EstaAntes();
    [[nodiscard]] bool EstaDepois();
    [[nodiscard]] bool TemLinhas();
    [[nodiscard]] qint64 Conta() { return m_fonte->Conta(); }
    [[nodiscard]] QStringList Campos() const;
    [[nodiscard]] bool SemPar() const { return m_semPar; }

    void VaiParaPrimeira();
    void VaiParaUltima();
    void Avanca();
    void Recua();
    void Procura(const QString &criterio);

    [[nodiscard]] QString Le(const QString &nome);
    [[nodiscard]] Rows LeTudo(const QStringList &campos) const;
    void Poe(const QString &nome, const QString &valor);
    void IniciaInclusao();
    void IniciaAlteracao();
    void Grava();
    void Apaga();

private:
    enum class Estado {
        Nova,    // nothing was read yet; the first row is the current one
        NaLinha, // on row m_linha of m_bloco
        Apagada, // on a row that is gone; its place still counts for the moves
        Antes,
        Depois,
        Vazia,
    };
    enum class Edicao { Nenhuma, Inclusao, Alteracao };

    void Posiciona();
    void Aceita(jet::Bloco &&bloco, qsizetype linha, Estado seVazio);
    [[nodiscard]] bool BlocoVale() const { return m_versao == m_selecao.Ligacao().escritas; }
    void ExigeLinha();
    void LeDeNovo();
    void FixaConjunto();
    void GravaInclusao();
    void GravaAlteracao();
    void EsqueceEdicao();
    [[nodiscard]] qsizetype IndiceDoCampo(const QString &nome) const;

    jet::Selecao m_selecao;
    std::unique_ptr<jet::Fonte> m_fonte;
    jet::FonteListada *m_listada = nullptr; // m_fonte, when it is a listed one

    Estado m_estado = Estado::Nova;
    jet::Bloco m_bloco;
    jet::Lugar m_lugar;    // of the current row, also when it is gone
    qsizetype m_linha = 0; // of the current row in the block
    quint64 m_versao = 0;  // count of writes at which the block was read
    int m_adiante = 1;     // rows to read with the next reading ahead
    bool m_teveLinhas = false;
    bool m_semPar = false;

    Edicao m_edicao = Edicao::Nenhuma;
    jet::Selecao::Valores m_novos;
};

} // namespace plataforma
