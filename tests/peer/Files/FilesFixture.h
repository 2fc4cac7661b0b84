// SPDX-License-Identifier: MIT
/** A folder for model files, and the peer's own program as their reader. */
#pragma once

#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "Zef/Peer/FilesReader.h"
#include "Zef/Peer/ProjectSource.h"
#include "fixtures/TemporaryFolder.h"

class FModelFiles : public testing::Test
{
protected:
	FModelFiles()
	{
		Options.Program = ZEF_PEER_PROGRAM;
		Zef::Peer::SetModelReaderOptions(Options);
	}
	~FModelFiles() override { Zef::Peer::SetModelReaderOptions({}); }

	std::string Write(const std::string& Name, const std::string& Bytes) const
	{
		std::ofstream(Folder / Name, std::ios::binary) << Bytes;
		return Folder / Name;
	}

	/** Loads with a reader that does this in place of reading. */
	Zef::Peer::FLoadResult LoadWith(Zef::Peer::FModelReaderOptions Faulty, const std::string& Fault) const
	{
		Faulty.Program = ZEF_PEER_PROGRAM;
		Faulty.Fault = Fault;
		Zef::Peer::SetModelReaderOptions(Faulty);
		return Zef::Peer::LoadObject(Zef::EObjectType::Prop, {Write("any.obj", "v 0 0 0\n")});
	}

	FTemporaryFolder Folder;
	Zef::Peer::FModelReaderOptions Options;
};

/** The only error of a load that gave no object; empty when there is another number of them. */
inline std::string ErrorOf(const Zef::Peer::FLoadResult& Result)
{
	return !Result.Object && Result.Errors.size() == 1 ? Result.Errors[0] : std::string();
}
