// SPDX-License-Identifier: MIT
#pragma once

#include <tuple>
#include <vector>

#include "cardwright/vbscript/syntax/Lexer.h"
#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// The base of all parts of the parser: the current token, the tree being built, the limit of nesting.
class ParserCore {
 public:
  explicit ParserCore(SyntaxTree& tree);

  /// Position of the current token.
  Position Where() const { return m_Token.position; }

 protected:
  /// Limit of nested parentheses, signs, calls and blocks. A level with operators of all precedences takes a
  /// dozen stack frames of whatever walks the tree. In all that is half a megabyte of stack, or two with
  /// AddressSanitizer.
  static constexpr int kMaxNesting = 250;

  /// Adds one level of nesting while it lives. Error 1001 beyond the limit.
  class Nesting {
   public:
    explicit Nesting(ParserCore& parser) : m_Parser(parser) {
      if (++m_Parser.m_Nesting > kMaxNesting) m_Parser.FailNested();
    }
    ~Nesting() { --m_Parser.m_Nesting; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

   private:
    ParserCore& m_Parser;
  };

  /// A list of unknown length, being built for the tree. All lists of one type share a stack, so only the
  /// newest of them may grow; at its end it leaves the stack.
  template <class T>
  class List {
   public:
    explicit List(ParserCore& parser)
        : m_Tree(parser.m_Tree),
          m_Stack(std::get<std::vector<T>>(parser.m_Stacks)),
          m_Start(m_Stack.size()) {}
    ~List() { m_Stack.resize(m_Start); }
    List(const List&) = delete;
    List& operator=(const List&) = delete;

    void Add(const T& item) { m_Stack.push_back(item); }
    std::size_t Size() const { return m_Stack.size() - m_Start; }
    std::span<T> Keep() { return m_Tree.Keep(std::span<const T>(m_Stack).subspan(m_Start)); }

   private:
    SyntaxTree& m_Tree;
    std::vector<T>& m_Stack;
    std::size_t m_Start;
  };

  const Token& Current() const { return m_Token; }
  bool At(TokenKind kind) const { return m_Token.kind == kind; }
  /// The token after the current one.
  Token PeekNext() const { return Lexer(m_Lexer).Next(); }
  /// A lexer for the tokens after the current one.
  Lexer LookAhead() const { return m_Lexer; }
  void Advance() { m_Token = m_Lexer.Next(); }
  Token Take() {
    const Token taken = m_Token;
    Advance();
    return taken;
  }
  bool Accept(TokenKind kind) {
    if (!At(kind)) return false;
    Advance();
    return true;
  }
  void Expect(TokenKind kind, SyntaxErrorNumber error) {
    if (!Accept(kind)) Fail(error);
  }
  Token TakeName() {
    if (!IsName(m_Token.kind)) Fail(SyntaxErrorNumber::ExpectedIdentifier);
    return Take();
  }
  [[noreturn]] void Fail(SyntaxErrorNumber error) const { Fail(error, Where()); }
  [[noreturn]] static void Fail(SyntaxErrorNumber error, Position where) { throw SyntaxError(error, where); }

  /// Turns the current token, such as `&17`, into the operator `&`, which it is after an operand.
  void SplitAmpersand();

  template <class T, class... A>
  T* Make(A&&... fields) {
    return m_Tree.Make<T>(std::forward<A>(fields)...);
  }
  SyntaxTree& Tree() { return m_Tree; }

 private:
  [[noreturn]] void FailNested();

  SyntaxTree& m_Tree;
  Lexer m_Lexer;
  Token m_Token;
  int m_Nesting = 0;
  std::tuple<std::vector<Expr*>, std::vector<Stmt*>, std::vector<IfBranch>, std::vector<SelectCase>,
             std::vector<VariableDecl>, std::vector<ConstDecl>, std::vector<ReDimTarget>,
             std::vector<Parameter>, std::vector<std::int32_t>, std::vector<const DimStmt*>,
             std::vector<const ProcedureDecl*>>
      m_Stacks;
};

}  // namespace cardwright::vbscript
