#pragma once

#include <cstddef>
#include <cstdint>

namespace fuzz {

/// A mutator for targets that read XML (see LLVMFuzzerCustomMutator in libFuzzer's documentation): most changes leave
/// the elements properly nested, so that they get past the parser. Elements are doubled, moved, deleted, exchanged and
/// put into one another; attribute values and texts are replaced by others of the same input or by odd ones. Every
/// third change, and each of an input that is no XML, is one of libFuzzer's own.
size_t mutateXml(uint8_t* data, size_t size, size_t maximum, unsigned int seed);

} // namespace fuzz
