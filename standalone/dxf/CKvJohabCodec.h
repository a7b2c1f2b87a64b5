// SPDX-License-Identifier: MIT
#pragma once

#include <QTextCodec>

/// The Korean code page 1361, in which a syllable's two bytes are its three letters. Qt has none.
/// Once made it belongs to Qt, as every codec does.
class CKvJohabCodec : public QTextCodec
{
public:
    /// The one codec, made at the first call.
    static QTextCodec *instance();

    QByteArray name() const override;
    int mibEnum() const override;

protected:
    /// Bytes that stand for nothing become U+FFFD, also the first half of a pair at the end.
    QString convertToUnicode(const char *bytes, int length, ConverterState *state) const override;
    /// What the code page lacks becomes "?", or a zero byte when the state asks for it.
    QByteArray
    convertFromUnicode(const QChar *text, int length, ConverterState *state) const override;
};
