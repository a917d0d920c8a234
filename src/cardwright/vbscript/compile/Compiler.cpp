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
  compiler.AddOutermostNames(names);
  // Procedures come first: they refer to the variables by name only.
  CompileProcedures();
  compiler.CompileBody(m_Tree.body);
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

  CompiledInScope compiled{.code = MakeRef<Procedure>(), .variables = {}};
  compiled.code->module = outer.module;
  compiled.code->owner = outer.owner;
  compiled.code->isExplicit = tree.optionExplicit;
  compiled.code->isGenerated = true;
  BodyCompiler body(definitions.Context(), *compiled.code, outer.owner);
  const NamesOfBody names = tree.expression ? CollectNames(*tree.expression, linkage.names)
                                            : CollectNames(tree.body, linkage.names);
  const auto refer = [&](NameId name) {
    if (body.Knows(name)) return;
    compiled.variables.push_back(name);
    body.AddParameter(name, false);
    if (name == outer.resultName) body.MarkResult(name);
  };
  const auto isOuter = [&](NameId name) {
    for (const auto& [local, r] : outer.locals)
      if (local == name) return true;
    return scope && scope->contains(name);
  };
  for (const NameId name : names.mentioned)
    if (isOuter(name)) refer(name);
  // Names that the text declares, and unbound names that it assigns, join the scope of the procedure.
  for (const NameId name : names.variables) refer(name);
  for (const NameId name : names.assigned) {
    if (outer.owner && outer.owner->Find(name)) continue;
    if (!block.names.contains(name) && !linkage.Lookup(*outer.module, name)) refer(name);
  }
  for (const auto& [name, value] : names.constants) body.AddConstant(name, value);
  std::uint16_t result = kNoRegister;
  if (tree.expression) {
    body.AddResult(kNoName);
    result = compiled.code->result;
  }
  body.AddOutermostNames(names);
  tree.expression ? body.CompileResult(*tree.expression, result) : body.CompileBody(tree.body);
  return compiled;
}

}  // namespace cardwright::vbscript
