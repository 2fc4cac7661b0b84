// SPDX-License-Identifier: MIT
#include "Text.h"

#include "Internationalization/Text.h"
#include "Math/Color.h"
#include "UObject/NameTypes.h"

namespace Host
{

QString ToQString(const FString& Text)
{
	return QString::fromUtf16(*Text, Text.Len());
}

QString ToQString(const FText& Text)
{
	return ToQString(Text.ToString());
}

QString ToQString(FName Name)
{
	return ToQString(Name.ToString());
}

FString ToFString(const QString& Text)
{
	return FString(static_cast<int32>(Text.size()), reinterpret_cast<const TCHAR*>(Text.utf16()));
}

FText ToFText(const QString& Text)
{
	return FText::FromString(ToFString(Text));
}

QColor ToQColor(const FLinearColor& Color)
{
	const FColor Seen = Color.ToFColor(true);
	return QColor(Seen.R, Seen.G, Seen.B, Seen.A);
}

} // namespace Host
