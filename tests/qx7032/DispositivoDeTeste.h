// A scripted device on a pseudo-terminal: reads what the library sends, frame by frame, and answers as told.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// What the device does with one whole frame.
struct Reacao {
    std::string bytes;                   ///< sent back as they stand; "%" stands for confirmation and success
    std::chrono::milliseconds demora{0}; ///< before they are sent
    bool desliga = false;                ///< hangs up behind them
};

/// Reads its frames with rules of its own, so that the library's are not judged by themselves.
class DispositivoDeTeste {
public:
    DispositivoDeTeste();
    ~DispositivoDeTeste();
    DispositivoDeTeste(const DispositivoDeTeste &) = delete;
    DispositivoDeTeste &operator=(const DispositivoDeTeste &) = delete;

    /// The tty that the library opens.
    [[nodiscard]] const std::string &Caminho() const { return m_caminho; }
    /// The reactions to the frames to come, in order; frames beyond them are confirmed and end with success.
    void Reage(std::vector<Reacao> reacoes);
    /// Sends bytes that nobody asked for.
    void Envia(const std::string &bytes) const;
    /// Hangs up, once so many bytes have come.
    void DesligaDepoisDe(std::size_t bytes);
    /// Reads nothing from now on, so that the line fills.
    void ParaDeLer();
    /// Every byte received, waiting until there are as many; at most five seconds.
    std::string Recebido(std::size_t quantos);
    /// The frames received, whole.
    std::vector<std::string> Quadros();

private:
    void Atende();
    void Acumula(const std::string &bytes);
    bool CumpreReacao(const std::string &quadro);
    bool Desliga();

    int m_mestre = -1;
    int m_escravo = -1; // kept open, so that the library's closing is no hang-up
    int m_fim[2] = {-1, -1};
    std::string m_caminho;
    std::mutex m_tranca;
    std::condition_variable m_chegou;
    std::string m_recebido;
    std::string m_aberto; // bytes of a frame that has not ended
    std::vector<std::string> m_quadros;
    std::vector<std::string> m_porAtender;
    std::vector<Reacao> m_reacoes;
    std::size_t m_desligaEm = 0;
    std::thread m_laco; // last: it uses all the others
};
