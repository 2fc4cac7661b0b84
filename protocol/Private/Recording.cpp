// SPDX-License-Identifier: MIT
#include "Zef/Recording.h"

#include "OwnFile.h"
#include "RecordingFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace Zef
{

namespace
{
/** Reads the records of a file that lies in memory, one after the other. */
class FRecordReader
{
public:
	FRecordReader(const std::string& InPath, const FBytes& InBytes)
		: Path(InPath)
		, Bytes(InBytes)
	{
	}

	/** The next record; false at a fault, or after the end. */
	bool Next()
	{
		Parts.clear();
		if (bEnded)
		{
			if (Place != Bytes.size())
			{
				Fail("was changed: something follows its end at byte " + std::to_string(Place) + "; copy it again.");
			}
			return false;
		}
		if (!Has(RecordHeadBytes))
		{
			return false;
		}
		const std::uint8_t* const Head = &Bytes[Place];
		Kind = static_cast<ERecord>(Head[0]);
		Version = static_cast<std::uint16_t>(GetNumber(Head + 2, 2));
		const std::size_t PartCount = Head[1];
		if (PartCount > MaxRecordParts)
		{
			return Damaged();
		}
		const std::size_t HeadBytes = RecordHeadBytes + PartCount * 8;
		if (!Has(HeadBytes))
		{
			return false;
		}
		FBytes Summed(Head, Head + HeadBytes);
		std::fill_n(Summed.begin() + 4, 4, std::uint8_t(0));
		std::uint32_t Sum = Checksum(0, Summed);
		const std::size_t First = Place + HeadBytes;
		std::size_t Last = First;
		for (std::size_t Index = 0; Index < PartCount; ++Index)
		{
			const std::uint64_t Length = GetNumber(Head + RecordHeadBytes + Index * 8, 8);
			if (Length > Bytes.size() - Last)
			{
				return CutOff(Length - (Bytes.size() - Last));
			}
			Parts.emplace_back(Bytes.data() + Last, static_cast<std::size_t>(Length));
			Sum = Checksum(Sum, Parts.back());
			Last += static_cast<std::size_t>(Length);
		}
		if (Sum != GetNumber(Head + 4, 4))
		{
			return Damaged();
		}
		Place = Last;
		++Number;
		if (Kind == ERecord::End)
		{
			if (Parts.size() != 1 || Parts[0].size() != 8 || GetNumber(Parts[0].data(), 8) != Number - 1)
			{
				--Number;
				return Damaged();
			}
			bEnded = true;
			return Next();
		}
		return true;
	}

	void Skip(std::size_t Count) { Place = Count; }

	ERecord Kind = ERecord::End;
	std::uint16_t Version = 0;
	std::vector<FByteView> Parts;
	FLinkFault Fault;

private:
	bool Has(std::size_t Count) { return Count <= Bytes.size() - Place || CutOff(Count - (Bytes.size() - Place)); }

	bool Fail(const std::string& What)
	{
		Fault = MakeFault(EFault::BadRecording, "", "\"" + Path + "\" " + What);
		return false;
	}

	bool CutOff(std::uint64_t Missing)
	{
		return Fail("was cut off: record " + std::to_string(Number + 1) + " at byte " + std::to_string(Place) +
					" lacks " + std::to_string(Missing) + " bytes at least; copy it again, or record again.");
	}

	bool Damaged()
	{
		return Fail("was changed: record " + std::to_string(Number + 1) + " at byte " + std::to_string(Place) +
					" does not agree with its checksum; copy it again, or record again.");
	}

	const std::string& Path;
	const FBytes& Bytes;
	std::size_t Place = 0;
	std::uint64_t Number = 0;
	bool bEnded = false;
};

FLinkFault Bad(const std::string& Path, const std::string& What)
{
	return MakeFault(EFault::BadRecording, "", "\"" + Path + "\" " + What);
}

/** Puts a record where it belongs. */
void Take(FRecording& Recording, const FRecordReader& Reader)
{
	const auto Text = [](FByteView Bytes) { return std::string(Bytes.begin(), Bytes.end()); };
	switch (Reader.Kind)
	{
		case ERecord::Connected:
			Recording.ProtocolVersion = std::max(Recording.ProtocolVersion, Reader.Version);
			Recording.Program = Reader.Parts.empty() ? "" : Text(Reader.Parts[0]);
			break;
		case ERecord::Request:
			Recording.Requests.emplace_back().Header = Reader.Parts.empty() ? FByteView() : Reader.Parts[0];
			break;
		case ERecord::Message:
			if (Recording.Requests.empty())
			{
				Recording.Requests.emplace_back();
			}
			Recording.Requests.back().Messages.push_back({Reader.Parts});
			++Recording.MessageCount;
			for (const FByteView Part : Reader.Parts)
			{
				Recording.MessageBytes += Part.size();
			}
			break;
		case ERecord::Lost:
			if (!Recording.Requests.empty())
			{
				Recording.Requests.back().bLost = true;
				Recording.Requests.back().LostReason = Reader.Parts.empty() ? "" : Text(Reader.Parts[0]);
			}
			break;
		default:
			break;
	}
}
} // namespace

TResult<FRecording> ReadRecording(const std::string& Path)
{
	std::error_code Error;
	if (!std::filesystem::is_regular_file(Path, Error))
	{
		return Bad(Path, Error && Error != std::errc::no_such_file_or_directory
							 ? "cannot be read: " + Error.message() + "."
							 : "is not there, or is no file.");
	}
	const std::uintmax_t Size = std::filesystem::file_size(Path, Error);
	std::ifstream File(Path, std::ios::binary);
	auto Bytes = std::make_shared<FBytes>();
	Bytes->resize(Error ? 0 : static_cast<std::size_t>(Size));
	if (Error || !File || !File.read(reinterpret_cast<char*>(Bytes->data()), static_cast<std::streamsize>(Size)))
	{
		return Bad(Path, "cannot be read: " + (Error ? Error.message() : LastError()) + ".");
	}
	if (Bytes->size() < RecordingHeadBytes || !std::equal(RecordingMark.begin(), RecordingMark.end(), Bytes->begin()))
	{
		return Bad(Path, "is no recording of the link: it does not begin with a recording's mark.");
	}
	const std::uint64_t Version = GetNumber(Bytes->data() + RecordingMark.size(), 4);
	if (Version != RecordingVersion)
	{
		return Bad(Path, "is a recording of layout " + std::to_string(Version) + "; this program reads layout " +
							 std::to_string(RecordingVersion) + ". Use the program that is as new as the recorder.");
	}
	FRecording Recording;
	FRecordReader Reader(Path, *Bytes);
	Reader.Skip(RecordingHeadBytes);
	while (Reader.Next())
	{
		Take(Recording, Reader);
	}
	if (Reader.Fault)
	{
		return Reader.Fault;
	}
	if (Recording.MessageCount == 0)
	{
		return Bad(Path, "holds nothing that an application sent; record again while one is connected.");
	}
	Recording.Bytes = std::move(Bytes);
	return Recording;
}

} // namespace Zef
