#pragma once
#include <QByteArray>
#include <random>

/// A seeded mutation: bytes flipped, cut, repeated, and pieces that readers trip over put in.
QByteArray Alterer(QByteArray octets, std::mt19937& tirage);
/// The same for a text of lines and quoted values, which mostly stays one: lines go, come twice or change
/// places, and values become others.
QByteArray AltererLignes(const QByteArray& octets, std::mt19937& tirage);
