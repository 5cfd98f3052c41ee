#include "message.h"

#include "design/number.h"

namespace marlogl::check {

Message::Piece::Piece(char character) : own_(1, character), text_(own_) {}

Message::Piece::Piece(int number) : own_(std::to_string(number)), text_(own_) {}

Message::Piece::Piece(std::size_t number) : own_(std::to_string(number)), text_(own_) {}

Message::Piece::Piece(double number) : own_(message_number(number)), text_(own_) {}

Message::Message(std::initializer_list<Piece> pieces)
{
    for (const Piece &piece : pieces)
        text_ += piece.text();
}

} // namespace marlogl::check
