// SPDX-License-Identifier: MIT
/** Texts and colours between the model and the windows. */
#pragma once

#include <QColor>
#include <QString>

class FName;
class FString;
class FText;
struct FLinearColor;

namespace Host
{

QString ToQString(const FString& Text);
QString ToQString(const FText& Text);
QString ToQString(FName Name);

FString ToFString(const QString& Text);
FText ToFText(const QString& Text);

/** The colour as it is seen: the model's are linear. */
QColor ToQColor(const FLinearColor& Color);

} // namespace Host
