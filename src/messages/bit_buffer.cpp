#include "messages/bit_buffer.hpp"

namespace vorlan {

void BitBuffer::grow(std::size_t wanted) {
  std::vector<char> longer(std::max(wanted, 2 * capacity_));
  std::copy_n(data_, size_, longer.begin());
  long_ = std::move(longer);
  data_ = long_.data();
  capacity_ = long_.size();
}

}  // namespace vorlan
