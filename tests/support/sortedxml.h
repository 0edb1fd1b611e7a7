#pragma once
#include <QByteArray>
#include <QDomElement>
#include <string>

// An element as text that is the same for the same content: a line each, attributes sorted by name.
std::string sortedXml(const QDomElement &element);
// Of a whole file; "(no XML)" when a DOM refuses it.
std::string sortedXml(const QByteArray &bytes);
