// The simulator's window: the last document, the slot, the faults, the memory and what happened.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTabWidget>
#include <vector>

#include "Simulador.h"
#include "VistaDoDocumento.h"

namespace simulador {

class Janela final : public QMainWindow {
    Q_OBJECT
public:
    explicit Janela(Simulador &simulador, QWidget *pai = nullptr);

protected:
    void closeEvent(QCloseEvent *evento) override;

private:
    void MontaControles();
    QWidget *MontaFenda();
    QWidget *MontaFalhas();
    QWidget *MontaMemoria();
    void LigaEventos();

    void AcrescentaDocumento(const Documento &documento, const QString &base);
    void AcrescentaMensagem(const QString &mensagem);
    void MostraEstado();
    void MostraFenda();
    void MostraFalha();
    void MostraMemoria();
    void EscolheFalha();

    Simulador &m_simulador;
    VistaDoDocumento *m_vista = nullptr;
    QLabel *m_fenda = nullptr;
    QPushButton *m_insere = nullptr;
    QCheckBox *m_automatica = nullptr;
    QComboBox *m_falha = nullptr;
    QSpinBox *m_quantos = nullptr;
    QTabWidget *m_abas = nullptr;
    QListWidget *m_lista = nullptr;
    QListWidget *m_mensagens = nullptr;
    QTableWidget *m_bancos = nullptr;
    QTableWidget *m_favorecidos = nullptr;
    QTableWidget *m_relatorio = nullptr;
    QLabel *m_geral = nullptr;
    QLabel *m_porta = nullptr;
    std::vector<Documento> m_documentos; // by row of the list
    Memoria m_mostrada;                  // what the tables show
};

} // namespace simulador
