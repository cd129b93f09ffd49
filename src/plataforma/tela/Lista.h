// A list of many rows of text: each row's text is made when it is shown.
#pragma once

#include <functional>
#include <QElapsedTimer>
#include <QListView>
#include <QString>

namespace plataforma {

/// A list box. Its current row is the selected one: there is none after filling, and none after Ctrl+click on
/// it. Moving the selection by keys counts as a click.
class Lista final : public QListView {
    Q_OBJECT
public:
    /// Makes the text of a row, counted from 0.
    using Texto = std::function<QString(int)>;

    explicit Lista(QWidget *pai = nullptr);
    ~Lista() override;

    /// Puts other rows in the place of those that stand; no row is current then.
    void Enche(int quantas, Texto texto);
    void Esvazia() { Enche(0, {}); }
    [[nodiscard]] int Quantas() const;
    [[nodiscard]] QString TextoDe(int linha) const;
    /// The current row counted from 0, or -1.
    [[nodiscard]] int Corrente() const;
    /// Text of the current row, empty when there is none.
    [[nodiscard]] QString TextoCorrente() const;
    /// Makes a row current (-1: none) and shows it, as a program does: it counts as no click.
    void PoeCorrente(int linha);
    /// Goes to the next row whose text begins with what was typed, round the end.
    void keyboardSearch(const QString &letras) override;

Q_SIGNALS:
    /// A row was clicked, also one that is current already, or reached by keys; it is the current one.
    void Clicada();
    /// A row was clicked twice; it is the current one.
    void ClicadaDuasVezes();

protected:
    void keyPressEvent(QKeyEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void mouseDoubleClickEvent(QMouseEvent *evento) override;
    QModelIndex moveCursor(CursorAction acao, Qt::KeyboardModifiers modificadores) override;

private:
    class Modelo;
    void Move(QKeyEvent *evento);
    void Copia() const;
    void AlternaCorrente(bool desfaz);
    [[nodiscard]] bool EstaDigitando() const;
    [[nodiscard]] int LinhaEm(const QMouseEvent *evento) const;
    [[nodiscard]] int Procura(const QString &inicio, int desde) const;
    void EscolhePorTecla(int linha);

    Modelo *m_modelo;
    QString m_digitado;           ///< what was typed to find a row
    QElapsedTimer m_ultimaLetra;  ///< since when nothing was typed
    int m_correnteAoPremir = -1;  ///< before the mouse was pressed
    int m_linhaPremida = -1;      ///< on which the mouse was pressed last
    bool m_segundoClique = false; ///< the next release ends a double click
};

} // namespace plataforma
