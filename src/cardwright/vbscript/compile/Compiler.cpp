// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/compile/Compiler.h"

#include "cardwright/vbscript/compile/BodyCompiler.h"

namespace cardwright::vbscript {

namespace {

class BlockCompiler {
 public:
  BlockCompiler(const SyntaxTree& tree, Linkage& linkage, Module& module, CompiledBlock& block)
      : m_Tree(tree),
        m_Linkage(linkage),
        m_Block(block),
        m_Context{linkage, module, block.names, tree.optionExplicit, linkage.IsObserved()} {}

  const CompileContext& Context() const noexcept { return m_Context; }
  void DeclareProcedures();
  void CompileProcedures();
  void CompileOutermost();

 private:
  Ref<ClassInfo> DeclareClass(const ClassDecl& declaration);
  void DeclareMember(ClassInfo& cls, const ProcedureDecl& declaration);
  Ref<Procedure> Compile(const ProcedureDecl& declaration, ClassInfo* owner);
  void CompileMember(ClassInfo& cls, const ProcedureDecl& declaration);
  NameId Name(std::u16string_view name) { return m_Linkage.names.Add(name); }

  const SyntaxTree& m_Tree;
  Linkage& m_Linkage;
  CompiledBlock& m_Block;
  CompileContext m_Context;
};

void BlockCompiler::DeclareProcedures() {
  for (const ProcedureDecl* procedure : m_Tree.procedures)
    m_Block.names[Name(procedure->name)] = {.kind = SymbolKind::Procedure};
  for (const ClassDecl* declaration : m_Tree.classes) {
    m_Block.names[Name(declaration->name)] = {.kind = SymbolKind::Class};
    m_Block.classes.push_back(DeclareClass(*declaration));
  }
}

Ref<ClassInfo> BlockCompiler::DeclareClass(const ClassDecl& declaration) {
  auto cls = MakeRef<ClassInfo>();
  cls->name = Name(declaration.name);
  cls->spelling = Text(declaration.name);
  cls->module = &m_Context.module;
  for (const DimStmt* fields : declaration.fields) {
    for (const VariableDecl& field : fields->variables) {
      ClassMember& member = cls->Member(Name(field.name));
      member.field = cls->fields++;
      member.fieldIsPublic = fields->visibility != Visibility::Private;
      if (field.isArray) cls->arrays.push_back({member.field, {{field.bounds.begin(), field.bounds.end()}}});
    }
  }
  for (const ProcedureDecl* procedure : declaration.procedures) DeclareMember(*cls, *procedure);
  return cls;
}

void BlockCompiler::DeclareMember(ClassInfo& cls, const ProcedureDecl& declaration) {
  const NameId name = Name(declaration.name);
  cls.Member(name);
  if (declaration.isDefault) cls.defaultMember = cls.index.at(name);
}

void BlockCompiler::CompileProcedures() {
  for (const ProcedureDecl* procedure : m_Tree.procedures)
    m_Block.procedures.push_back(Compile(*procedure, nullptr));
  for (std::size_t k = 0; k < m_Tree.classes.size(); ++k)
    for (const ProcedureDecl* procedure : m_Tree.classes[k]->procedures)
      CompileMember(*m_Block.classes[k], *procedure);
}

Ref<Procedure> BlockCompiler::Compile(const ProcedureDecl& declaration, ClassInfo* owner) {
  auto procedure = MakeRef<Procedure>();
  procedure->name = Name(declaration.name);
  procedure->module = &m_Context.module;
  procedure->owner = owner;
  procedure->isExplicit = m_Context.isExplicit;
  procedure->isGenerated = m_Linkage.IsRunning();
  BodyCompiler compiler(m_Context, *procedure, owner, declaration.position);
  for (const Parameter& parameter : declaration.parameters)
    compiler.AddParameter(Name(parameter.name), parameter.byValue);
  const bool returns =
      declaration.kind == ProcedureKind::Function || declaration.kind == ProcedureKind::PropertyGet;
  if (returns && !compiler.Knows(procedure->name)) {
    compiler.AddResult(procedure->name);
  } else if (returns) {
    compiler.AddResult(kNoName);
  }
  compiler.AddNames(CollectNames(declaration.body, m_Linkage.names));
  compiler.CompileBody(declaration.body);
  return procedure;
}

void BlockCompiler::CompileMember(ClassInfo& cls, const ProcedureDecl& declaration) {
  ClassProcedure compiled{Compile(declaration, &cls), declaration.visibility != Visibility::Private};
  ClassMember& member = cls.Member(Name(declaration.name));
  switch (declaration.kind) {
    case ProcedureKind::PropertyGet: member.get = std::move(compiled); break;
    case ProcedureKind::PropertyLet: member.let = std::move(compiled); break;
    case ProcedureKind::PropertySet: member.set = std::move(compiled); break;
    case ProcedureKind::Sub:
    case ProcedureKind::Function:
      if (EqualsNoCase(declaration.name, u"Class_Initialize")) cls.initialize = compiled.code;
      if (EqualsNoCase(declaration.name, u"Class_Terminate")) cls.terminate = compiled.code;
      member.method = std::move(compiled);
      break;
  }
}

// Variables that the text declares are registers of the code outside procedures. A variable that the module
// has already stays where it is.
void BlockCompiler::CompileOutermost() {
  auto code = MakeRef<Procedure>();
  code->module = &m_Context.module;
  code->isOutermost = true;
  code->isExplicit = m_Context.isExplicit;
  code->isGenerated = m_Linkage.IsRunning();
  BodyCompiler compiler(m_Context, *code, nullptr);
  const NamesOfBody names = CollectNames(m_Tree.body, m_Linkage.names);
  for (const auto& [name, value] : names.constants)
    m_Block.names[name] = {.kind = SymbolKind::Constant, .constant = value};
  for (const NameId name : names.variables) {
    const Symbol* known = m_Context.module.Find(name);
    if (known && known->kind == SymbolKind::Variable) continue;
    m_Block.names[name] = {.kind = SymbolKind::Variable, .variable = compiler.AddVariable(name)};
    m_Block.hasVariables = true;
  }
  m_Block.code = code;
  compiler.LayOutRegisters(names);
  // Procedures come first: they refer to the variables by name only.
  CompileProcedures();
  compiler.CompileBody(m_Tree.body);
}

// Compiles code that runs in the scope of a procedure. Each variable of that scope which the code uses
// becomes a parameter of the compiled code.
class ScopeCompiler {
 public:
  ScopeCompiler(const CompileContext& context, const Procedure& outer, const ScopeVariables* scope)
      : m_Context(context), m_Outer(outer), m_Scope(scope) {
    m_Compiled.code = MakeRef<Procedure>();
    m_Compiled.code->module = outer.module;
    m_Compiled.code->owner = outer.owner;
    m_Compiled.code->isExplicit = context.isExplicit;
    m_Compiled.code->isGenerated = true;
  }

  CompiledInScope Compile(const SyntaxTree& tree);

 private:
  bool IsInScope(NameId name) const;
  bool IsUnbound(NameId name) const;
  void Refer(BodyCompiler& body, NameId name);
  void ReferToVariables(BodyCompiler& body, const NamesOfBody& names);

  const CompileContext& m_Context;
  const Procedure& m_Outer;
  const ScopeVariables* m_Scope;
  CompiledInScope m_Compiled;
};

CompiledInScope ScopeCompiler::Compile(const SyntaxTree& tree) {
  Names& allNames = m_Context.linkage.names;
  const NamesOfBody names =
      tree.expression ? CollectNames(*tree.expression, allNames) : CollectNames(tree.body, allNames);
  BodyCompiler body(m_Context, *m_Compiled.code, m_Outer.owner);
  ReferToVariables(body, names);
  for (const auto& [name, value] : names.constants) body.AddConstant(name, value);
  if (tree.expression) body.AddResult(kNoName);
  body.LayOutRegisters(names);
  if (tree.expression) {
    body.CompileResult(*tree.expression, m_Compiled.code->result);
  } else {
    body.CompileBody(tree.body);
  }
  return std::move(m_Compiled);
}

// Names that the text declares, and unbound names that it assigns, join the scope of the procedure.
void ScopeCompiler::ReferToVariables(BodyCompiler& body, const NamesOfBody& names) {
  for (const NameId name : names.mentioned)
    if (IsInScope(name)) Refer(body, name);
  for (const NameId name : names.variables) Refer(body, name);
  for (const NameId name : names.assigned)
    if (IsUnbound(name)) Refer(body, name);
}

bool ScopeCompiler::IsInScope(NameId name) const {
  for (const auto& [local, r] : m_Outer.locals)
    if (local == name) return true;
  return m_Scope && m_Scope->contains(name);
}

bool ScopeCompiler::IsUnbound(NameId name) const {
  if (m_Outer.owner && m_Outer.owner->Find(name)) return false;
  return !m_Context.block.contains(name) && !m_Context.linkage.Lookup(*m_Outer.module, name);
}

void ScopeCompiler::Refer(BodyCompiler& body, NameId name) {
  if (body.Knows(name)) return;
  m_Compiled.variables.push_back(name);
  body.AddParameter(name, false);
  if (name == m_Outer.resultName) body.MarkResult(name);
}

}  // namespace

CompiledBlock CompileBlock(const SyntaxTree& tree, Linkage& linkage, Module& module) {
  CompiledBlock block;
  BlockCompiler compiler(tree, linkage, module, block);
  compiler.DeclareProcedures();
  compiler.CompileOutermost();
  return block;
}

CompiledInScope CompileInScope(const SyntaxTree& tree, Linkage& linkage, const Procedure& outer,
                               const ScopeVariables* scope, CompiledBlock& block) {
  BlockCompiler definitions(tree, linkage, *outer.module, block);
  definitions.DeclareProcedures();
  definitions.CompileProcedures();
  return ScopeCompiler(definitions.Context(), outer, scope).Compile(tree);
}

}  // namespace cardwright::vbscript
