// SPDX-License-Identifier: MIT
#include "Zef/Recording.h"

#include "HeaderReader.h"
#include "OwnFile.h"
#include "RecordingFile.h"
#include "Zef/Decode.h"
#include "Zef/RecordPool.h"

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

/** The request that a reply answers; None for what may answer any. */
EItem RequestOf(EItem Reply)
{
	switch (Reply)
	{
		case EItem::UpdateAnnouncement:
		case EItem::SurfaceMesh:
			return EItem::RequestUpdate;
		case EItem::JointAnimation:
		case EItem::SequenceBegin:
		case EItem::SequenceFrame:
		case EItem::SequenceEnd:
			return EItem::RequestAnimation;
		case EItem::Availability:
			return EItem::RequestAvailability;
		default:
			return EItem::None;
	}
}

/** Puts records where they belong. Requests and replies are paired by their kind, as everywhere on the link. */
class FRecordingBuilder
{
public:
	explicit FRecordingBuilder(FRecording& InRecording)
		: Recording(InRecording)
		, Decoder(Factory, EReceiver::GarmentApplication, FLimits())
	{
	}

	void Take(const FRecordReader& Reader)
	{
		const FByteView First = Reader.Parts.empty() ? FByteView() : Reader.Parts[0];
		switch (Reader.Kind)
		{
			case ERecord::Connected:
				Recording.ProtocolVersion = std::max(Recording.ProtocolVersion, Reader.Version);
				Recording.Program.assign(First.begin(), First.end());
				break;
			case ERecord::Request:
				TakeRequest(First);
				break;
			case ERecord::Message:
				TakeMessage(Reader.Parts);
				break;
			case ERecord::Lost:
				if (!Recording.Requests.empty())
				{
					Recording.Requests.back().bLost = true;
					Recording.Requests.back().LostReason.assign(First.begin(), First.end());
				}
				break;
			default:
				break;
		}
	}

private:
	void TakeRequest(FByteView Header)
	{
		FRecordedRequest& Request = Recording.Requests.emplace_back();
		Request.Header = Header;
		Current = Recording.Requests.size() - 1;
		if (Decoder.Header(++Number, Header) != EDecode::Refused)
		{
			Request.Item = Decoder.CurrentItem();
			const FDecodedItem Item = Decoder.Take();
			Request.Options = Item.Options;
			Request.Info = Item.Info;
		}
	}

	void TakeMessage(const std::vector<FByteView>& Parts)
	{
		if (Recording.Requests.empty())
		{
			Recording.Requests.emplace_back();
			Current = 0;
		}
		FLinkFault Fault;
		const std::optional<FPrefix> Prefix = Parts.empty() ? std::nullopt : DecodePrefix(Parts[0], Fault);
		if (Prefix && Prefix->Frame == EFrame::Item && Parts.size() == 2)
		{
			Current = AnsweredBy(KindOfHeader(Parts[1]));
		}
		Recording.Requests[Current].Messages.push_back({Parts});
		++Recording.MessageCount;
		for (const FByteView Part : Parts)
		{
			Recording.MessageBytes += Part.size();
		}
	}

	/** Place of the latest request that such a reply answers; the latest of all when there is none. */
	std::size_t AnsweredBy(EItem Reply) const
	{
		const EItem Wanted = RequestOf(Reply);
		for (std::size_t Place = Recording.Requests.size(); Wanted != EItem::None && Place > 0; --Place)
		{
			if (Recording.Requests[Place - 1].Item == Wanted)
			{
				return Place - 1;
			}
		}
		return Recording.Requests.size() - 1;
	}

	FRecording& Recording;
	FRecordFactory Factory;
	FItemDecoder Decoder;
	std::uint64_t Number = 0;
	std::size_t Current = 0;
};
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
	FRecordingBuilder Builder(Recording);
	while (Reader.Next())
	{
		Builder.Take(Reader);
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
