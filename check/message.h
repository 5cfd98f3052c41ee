// What a rule says, put together from texts and numbers.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace marlogl::check {

class Message {
  public:
    /// A text, or a number as messages show numbers. It refers to the text that it was made from.
    class Piece {
      public:
        Piece(const char *text) : text_(text) {}
        Piece(const std::string &text) : text_(text) {}
        Piece(std::string_view text) : text_(text) {}
        Piece(char character);
        Piece(int number);
        Piece(std::size_t number);
        Piece(double number);
        Piece(const Piece &) = delete;
        Piece &operator=(const Piece &) = delete;

        std::string_view text() const { return text_; }

      private:
        std::string own_;
        std::string_view text_;
    };

    Message(const char *text) : text_(text) {}
    Message(std::string text) : text_(std::move(text)) {}
    Message(std::initializer_list<Piece> pieces);

    const std::string &text() const { return text_; }

  private:
    std::string text_;
};

} // namespace marlogl::check
