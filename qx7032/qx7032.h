/* The 15 operations of the QX-70 Device Library. Texts are NUL-terminated Windows-1252 (texts for the device
 * already in its own code page), in buffers that the library may rewrite but never lengthens. Every operation
 * but ImprimeCampoX and MontaValor needs the port open; each ends within a bounded time and answers one of
 * the numbers of resultados.h, 1 for success. Not to be called from two threads at once. */
#ifndef QX7032_QX7032_H
#define QX7032_QX7032_H

#include <stdint.h>

#define QX7032_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* Opens "COM1" to "COM4"; the name is trimmed and put in capitals in its buffer. An open port is closed
 * first. 1 = open, 0 = not; the operations that follow then answer why (2 to 6). */
QX7032_API int16_t IniciaPorta(char *porta);
/* Closes the port when everything written has left. 1, or the number of the first operation that failed since
 * the port was opened; a closed port answers 1. */
QX7032_API int16_t FechaPorta(void);
/* 1 holds the document for what follows, 0 releases it. */
QX7032_API int16_t TravaDoc(int16_t trava);
/* Prints free text. modo: 1 = 136, 2 = 96, 3 = 80 columns; f5 = 1 emphasised. Any length. */
QX7032_API int16_t FormataTX(char *texto, int16_t modo, int16_t f3, int16_t f4, int16_t f5, int16_t f6);
/* Sends text as it stands, with no frame and no answer; byte 02 is refused. */
QX7032_API int16_t KorvalenTX(char *dados);
/* Sends the first `tamanho` bytes of a command likewise; the text must have as many. */
QX7032_API int16_t ComandoTX(char *comando, int16_t tamanho);
/* Prints a cheque, with the extra fields handed over since the last one. */
QX7032_API int16_t ImprimeCheque(char *banco, char *valor, char *favorecido, char *cidade, char *data,
                                 char *extra);
/* Keeps an extra field (line and column from 1) for the next ImprimeCheque; the same `campo` again replaces
 * it. */
QX7032_API int16_t ImprimeCampoX(int16_t campo, int16_t linha, int16_t coluna, char *texto);
/* Puts a bank's layout in the device: the code and 13 numbers joined by ",". */
QX7032_API int16_t IncluiBanco(char *codigo, char *posicoes);
QX7032_API int16_t IncluiFavorecido(char *codigo, char *nome);
/* "*" takes every payee out. */
QX7032_API int16_t ExcluiFavorecido(char *codigo);
/* "*" empties the report of cheques sent, "U" or "u" takes its last entry out. */
QX7032_API int16_t CancelaRel(char *alvo);
QX7032_API int16_t AlteraMoeda(char *singular, char *plural);
QX7032_API int16_t ZeraConfig(void);
/* Writes the words of an amount ("1234,56") to Extenso.ret in the current directory, Windows-1252, closed by
 * ".". 0 = written, 1 = bad amount or names, 2 = the file could not be written (or the number data not be
 * read). */
QX7032_API int16_t MontaValor(char *valor, char *singular, char *plural);

#ifdef __cplusplus
}
#endif

#endif
