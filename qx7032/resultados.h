/* Result numbers of the QX-70 operations, each with what the operator should do about it. Plain C and C++. */
#ifndef QX7032_RESULTADOS_H
#define QX7032_RESULTADOS_H

/* X(name, number, what the operator reads) */
#define QX7032_TABELA_DE_RESULTADOS(X)                                                                       \
    X(QX7032_PORTA_NAO_ABRIU, 0, "A porta não pôde ser aberta. Veja a porta na configuração e o cabo.")      \
    X(QX7032_SUCESSO, 1, "Tudo certo.")                                                                      \
    X(QX7032_PORTA_DESCONHECIDA, 2,                                                                          \
      "A porta não é conhecida. Escolha COM1 a COM4 na configuração ou corrija o arquivo qx7032.conf.")      \
    X(QX7032_PORTA_AUSENTE, 3,                                                                               \
      "A porta não existe nesta máquina. Ligue o cabo ou o adaptador USB, ou escolha outra porta.")          \
    X(QX7032_PORTA_OCUPADA, 4, "Outro programa está usando a porta. Feche-o e tente de novo.")               \
    X(QX7032_PORTA_SEM_PERMISSAO, 5,                                                                         \
      "Este usuário não tem direito de usar a porta. Peça para ser incluído no grupo dialout.")              \
    X(QX7032_PORTA_NAO_CONFIGURA, 6,                                                                         \
      "A porta não aceita o ajuste da linha serial. Veja a velocidade e o nome da porta em qx7032.conf.")    \
    X(QX7032_PORTA_FECHADA, 7, "A porta não foi aberta. Tente de novo; se voltar, reinicie o programa.")     \
    X(QX7032_SEM_RESPOSTA, 10,                                                                               \
      "A impressora não respondeu. Veja se está ligada e com o cabo firme; olhe no papel antes de tentar " \
      "de novo.")                                                                                            \
    X(QX7032_RESPOSTA_EMBARALHADA, 11,                                                                       \
      "A resposta chegou embaralhada. Olhe no papel se já imprimiu; veja o cabo e a velocidade.")            \
    X(QX7032_LINHA_CAIU, 12,                                                                                 \
      "A linha caiu durante a operação. Religue o cabo e olhe no papel se já imprimiu.")                     \
    X(QX7032_QUADRO_DANIFICADO, 13,                                                                          \
      "A ordem chegou danificada à impressora e nada foi feito. Tente de novo; se voltar, troque o cabo.")   \
    X(QX7032_SEM_CONCLUSAO, 14,                                                                              \
      "A impressora recebeu a ordem mas não disse que terminou. Olhe no papel antes de imprimir de novo.")   \
    X(QX7032_SEM_DOCUMENTO, 20, "Não há documento na impressora. Insira o documento e tente de novo.")       \
    X(QX7032_FIM_DE_PAPEL, 21, "Acabou o papel. Ponha papel e tente de novo.")                               \
    X(QX7032_BANCO_SEM_LEIAUTE, 22,                                                                          \
      "A impressora não tem o leiaute deste banco. Envie o banco pelo cadastro de bancos.")                  \
    X(QX7032_TEXTO_RECUSADO, 23,                                                                             \
      "Um texto não cabe no documento ou não foi aceito. Confira os campos e as posições do banco.")         \
    X(QX7032_FAVORECIDO_INEXISTENTE, 24, "A impressora não tem este favorecido. Nada havia a excluir.")      \
    X(QX7032_OUTRA_FALHA, 29,                                                                                \
      "A impressora acusou outra falha. Olhe no papel se já imprimiu, desligue-a, ligue-a e tente de novo.") \
    X(QX7032_ARGUMENTO_INVALIDO, 30,                                                                         \
      "Um texto enviado é longo demais ou tem sinal proibido. Confira os campos preenchidos.")

enum ResultadoQx7032 {
#define QX7032_DECLARA(nome, numero, conselho) nome = numero,
    QX7032_TABELA_DE_RESULTADOS(QX7032_DECLARA)
#undef QX7032_DECLARA
};

/* MontaValor counts otherwise. */
enum ResultadoDeMontaValor {
    QX7032_VALOR_MONTADO = 0,     /* the words are in Extenso.ret */
    QX7032_VALOR_INVALIDO = 1,    /* amount or currency names are no good */
    QX7032_ARQUIVO_NAO_ABRIU = 2, /* Extenso.ret could not be written, or the number data could not be read */
};

/* What the operator should do about a result number (UTF-8); null for a number that does not exist. */
static inline const char *Qx7032Conselho(int resultado)
{
    switch (resultado) {
#define QX7032_ACONSELHA(nome, numero, conselho)                                                             \
    case nome:                                                                                               \
        return conselho;
        QX7032_TABELA_DE_RESULTADOS(QX7032_ACONSELHA)
#undef QX7032_ACONSELHA
    default:
        return 0;
    }
}

#endif
