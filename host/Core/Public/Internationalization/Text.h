// SPDX-License-Identifier: MIT
/** FText, a text for users. */
#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

class FText;
class FTextFormat;
struct FFormatArgumentValue;
struct FTextData;
using FFormatNamedArguments = TMap<FString, FFormatArgumentValue>;
using FFormatOrderedArguments = TArray<FFormatArgumentValue>;

namespace ETextComparisonLevel
{
enum Type
{
	Default,
	Primary,
	Secondary,
	Tertiary,
	Quaternary,
	Quinary
};
}

enum class ETextIdenticalModeFlags : uint8
{
	None = 0,
	/** Texts that were generated in the same way are identical. */
	DeepCompare = 1 << 0,
	LexicalCompareInvariants = 1 << 1
};

/** How a number is shown. */
struct FNumberFormattingOptions
{
	bool AlwaysSign = false;
	bool UseGrouping = true;
	int32 MinimumIntegralDigits = 1;
	int32 MaximumIntegralDigits = 324;
	int32 MinimumFractionalDigits = 0;
	int32 MaximumFractionalDigits = 3;

	FNumberFormattingOptions& SetAlwaysSign(bool bValue);
	FNumberFormattingOptions& SetUseGrouping(bool bValue);
	FNumberFormattingOptions& SetMinimumIntegralDigits(int32 Value);
	FNumberFormattingOptions& SetMaximumIntegralDigits(int32 Value);
	FNumberFormattingOptions& SetMinimumFractionalDigits(int32 Value);
	FNumberFormattingOptions& SetMaximumFractionalDigits(int32 Value);
};

/**
 * Immutable text for users, shared between copies.
 *
 * A text from LOCTEXT or NSLOCTEXT knows its namespace and key; the language is English, so it shows its source.
 * Numbers are shown in groups of three digits: 1,234.5.
 */
class CORE_API FText
{
public:
	FText();

	static const FText& GetEmpty();
	static FText FromString(const FString& String);
	static FText FromString(FString&& String);
	static FText FromStringView(FStringView View);
	static FText FromName(const FName& Name);
	/** A text that is never translated. */
	static FText AsCultureInvariant(const FString& String);

	static FText AsNumber(float Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(double Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(int8 Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(int16 Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(int32 Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(int64 Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(long Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(uint8 Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(uint16 Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(uint32 Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(uint64 Value, const FNumberFormattingOptions* Options = nullptr);
	static FText AsNumber(unsigned long Value, const FNumberFormattingOptions* Options = nullptr);
	/** 0.25 is shown as 25%. */
	static FText AsPercent(double Value, const FNumberFormattingOptions* Options = nullptr);

	/**
	 * Puts arguments for {0}, {1}, ... of a pattern; "`{" is a plain brace.
	 *
	 * Numbers are shown as AsNumber shows them. A number without an argument stays as written.
	 */
	template <typename... ArgTypes>
	requires(sizeof...(ArgTypes) > 0) static FText Format(const FTextFormat& Pattern, ArgTypes&&... Args);
	static FText Format(const FTextFormat& Pattern, FFormatNamedArguments Arguments);
	static FText Format(const FTextFormat& Pattern, FFormatOrderedArguments Arguments);
	template <typename... ArgTypes>
	static FText FormatOrdered(const FTextFormat& Pattern, ArgTypes&&... Args);
	/** Arguments in pairs of name and value. */
	template <typename... ArgTypes>
	static FText FormatNamed(const FTextFormat& Pattern, ArgTypes&&... Args);
	static FText Join(const FText& Delimiter, const TArray<FText>& Args);

	const FString& ToString() const;
	/** The text in its source language. */
	FString BuildSourceString() const { return ToString(); }
	bool IsEmpty() const { return ToString().IsEmpty(); }
	bool IsEmptyOrWhitespace() const;
	bool IsNumeric() const { return ToString().IsNumeric(); }
	bool IsCultureInvariant() const;
	bool IsFromStringTable() const { return false; }
	bool ShouldGatherForLocalization() const;
	FText ToUpper() const;
	FText ToLower() const;
	static FText TrimPrecedingAndTrailing(const FText& Text);

	/** Whether both show the same; cases are told apart. */
	bool EqualTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	bool EqualToCaseIgnored(const FText& Other) const;
	int32 CompareTo(
		const FText& Other, ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	int32 CompareToCaseIgnored(const FText& Other) const;
	/** Whether both are copies of one text, or have the same namespace and key, or are both empty. */
	bool IdenticalTo(
		const FText& Other, ETextIdenticalModeFlags CompareModeFlags = ETextIdenticalModeFlags::None) const;

private:
	friend class FTextInspector;
	friend class FInternationalization;
	explicit FText(TSharedRef<const FTextData> InData)
		: Data(MoveTemp(InData))
	{
	}

	TSharedRef<const FTextData> Data;
};

/** Reads what a text is made of. */
class CORE_API FTextInspector
{
public:
	static bool ShouldGatherForLocalization(const FText& Text) { return Text.ShouldGatherForLocalization(); }
	/** Namespace of a text with a key; not set for other texts. */
	static TOptional<FString> GetNamespace(const FText& Text);
	static TOptional<FString> GetKey(const FText& Text);
	/** The English text as written in the source; null for a text without a key. */
	static const FString* GetSourceString(const FText& Text);
	static const FString& GetDisplayString(const FText& Text) { return Text.ToString(); }
};

/** Pattern of FText::Format. */
class CORE_API FTextFormat
{
public:
	FTextFormat() = default;
	FTextFormat(const FText& InText)
		: SourceText(InText)
	{
	}
	static FTextFormat FromString(const FString& InString) { return FTextFormat(FText::FromString(InString)); }
	const FText& GetSourceText() const { return SourceText; }
	bool IsValid() const { return true; }

private:
	FText SourceText;
};

/** Argument of FText::Format: a number or a text. */
struct CORE_API FFormatArgumentValue
{
	FFormatArgumentValue() = default;
	FFormatArgumentValue(FText InValue)
		: Text(MoveTemp(InValue))
	{
	}
	template <typename NumberType>
	requires(std::is_arithmetic_v<NumberType>) FFormatArgumentValue(NumberType InValue)
		: Text(FText::AsNumber(InValue))
	{
	}

	FText Text;
};

template <typename... ArgTypes>
requires(sizeof...(ArgTypes) > 0) FText FText::Format(const FTextFormat& Pattern, ArgTypes&&... Args)
{
	return Format(Pattern, FFormatOrderedArguments{FFormatArgumentValue(Forward<ArgTypes>(Args))...});
}

template <typename... ArgTypes>
FText FText::FormatOrdered(const FTextFormat& Pattern, ArgTypes&&... Args)
{
	return Format(Pattern, FFormatOrderedArguments{FFormatArgumentValue(Forward<ArgTypes>(Args))...});
}

namespace UE::Core::Private
{

inline void AddNamedArguments(FFormatNamedArguments&) {}

template <typename ValueType, typename... ArgTypes>
void AddNamedArguments(FFormatNamedArguments& Out, const FString& Name, ValueType&& Value, ArgTypes&&... Args)
{
	Out.Add(Name, FFormatArgumentValue(Forward<ValueType>(Value)));
	AddNamedArguments(Out, Forward<ArgTypes>(Args)...);
}

} // namespace UE::Core::Private

template <typename... ArgTypes>
FText FText::FormatNamed(const FTextFormat& Pattern, ArgTypes&&... Args)
{
	FFormatNamedArguments Arguments;
	UE::Core::Private::AddNamedArguments(Arguments, Forward<ArgTypes>(Args)...);
	return Format(Pattern, MoveTemp(Arguments));
}

inline FString LexToString(const FText& Text)
{
	return Text.ToString();
}

#include "Internationalization/Internationalization.h"
