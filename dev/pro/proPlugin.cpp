#include "proPlugin.h"

ParameterInformation::ParameterInformation() = default;

void ParameterInformation::setFormat(int sigNo, int formatType, int strLength)
{
    this->sigNo = sigNo;
    this->formatType = formatType;
    this->strLength = strLength;
}

void ParameterInformation::setFormat(int sigNo, int formatType, int min, int max)
{
    this->sigNo = sigNo;
    this->formatType = formatType;
    this->min = min;
    this->max = max;
}

void ParameterInformation::setLines(int lines)
{
    this->lines = lines;
}

void ParameterInformation::addCombo(QStringList texts)
{
    for (int code = 0; code < texts.size(); ++code)
        comboxMap.insert(texts.at(code), code);
}
