#pragma once
#include <QByteArray>
#include <QImage>

// Photos are kept as JPEG. A picture of more than 50 million pixels is refused both ways.

/// The picture of a JPEG file. Raises Exception, in French, when the bytes are none, are damaged or
/// stop before their end.
QImage DecoderJpeg(const QByteArray& octets);
/// Raises Exception for an empty picture and for one that JPEG cannot hold.
QByteArray EncoderJpeg(const QImage& image);
