// The help window: an index, the pages, a way back and forward, and a search in the page.
#pragma once

#include <QUrl>
#include <QWidget>

class QListWidget;
class QPushButton;
class QTextBrowser;

namespace app {

class Procura;

/// Window "Ajuda". The pages are part of the program; nothing of them is read before the first page is shown.
class Ajuda final : public QWidget {
    Q_OBJECT
public:
    /// @param pai the window to which the help belongs: it closes with it and does not keep the program alive
    explicit Ajuda(QWidget *pai = nullptr);

    /// Shows the page of a topic word, the page of contents for an unknown one.
    void Mostra(const QString &topico);

protected:
    void changeEvent(QEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    void MontaControles();
    void MontaIndice();
    void DaTamanhoInicial();
    void LigaEventos();
    void LigaTeclas();
    void AplicaEstilo();                    ///< colours and distances of the pages, from palette and font
    void PaginaMudou(const QUrl &endereco); ///< the index follows the page shown
    void RecarregaPagina();                 ///< after a change of style, at the same place

    QListWidget *m_indice = nullptr;
    QTextBrowser *m_pagina = nullptr;
    QPushButton *m_voltar = nullptr;
    QPushButton *m_avancar = nullptr;
    QPushButton *m_procurar = nullptr;
    QPushButton *m_fechar = nullptr;
    Procura *m_procura = nullptr;
};

/// Shows the help of a topic word in the one help window of `pai`, which is made at its first use.
void MostraAjuda(const QString &topico, QWidget *pai);

} // namespace app
