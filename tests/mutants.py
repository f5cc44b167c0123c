"""Finds places of the program that can be changed, and writes all changes into one copy of it.

Each change is numbered and does nothing until its number is switched on (Mutants.h): what stands in
the source stays there, wrapped in a question for the number.
"""
import dataclasses
import re

from clang import cindex
from clang.cindex import CursorKind as Kind
from clang.cindex import TypeKind

OPERATORS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||",
             "||": "&&", "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "<<": ">>", ">>": "<<",
             "+=": "-=", "-=": "+="}
STATEMENTS = {Kind.IF_STMT, Kind.FOR_STMT, Kind.WHILE_STMT, Kind.DO_STMT, Kind.BREAK_STMT,
              Kind.CONTINUE_STMT, Kind.CXX_FOR_RANGE_STMT, Kind.CXX_TRY_STMT, Kind.SWITCH_STMT}
FUNCTIONS = {Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR,
             Kind.CONVERSION_FUNCTION, Kind.FUNCTION_TEMPLATE}


@dataclasses.dataclass
class Mutant:
    """One change. `name` is told by words of the source only, so that it survives a reformat."""
    file: str
    line: int
    last_line: int
    name: str
    wraps: list  # (begin, end, text before, text after); "#" stands for the number
    constant: str = ""  # the constant of compile time that must not be one for this change
    constant_at: int = 0  # where its "constexpr" stands
    number: int = 0


class Finder:
    """Finds the changes of one source file."""

    def __init__(self, file, path, arguments):
        self.file, self.path = file, path
        self.text = path.read_bytes()
        self.found, self.names = [], {}
        unit = cindex.Index.create().parse(str(path), arguments)
        errors = [str(d) for d in unit.diagnostics if d.severity >= cindex.Diagnostic.Error]
        if errors:
            raise RuntimeError("\n".join(errors))
        for child in unit.cursor.get_children():
            if cindex.conf.lib.clang_Location_isFromMainFile(child.location):
                self._walk(child, [])

    def _span(self, node):
        return node.extent.start.offset, node.extent.end.offset

    def _source(self, node):
        begin, end = self._span(node)
        return self.text[begin:end].decode()

    def _add(self, node, above, change, *wraps):
        function = next((up.spelling for up in reversed(above) if up.kind in FUNCTIONS), "")
        change = " ".join(change.split())
        name = f"{self.file}: {function}: {self._statement(node, above)}: {change}"
        self.names[name] = count = self.names.get(name, 0) + 1
        if count > 1:
            name += f" #{count}"
        mutant = Mutant(self.file, node.extent.start.line, node.extent.end.line, name, list(wraps))
        for up in above:
            if up.kind == Kind.VAR_DECL and "constexpr" in self._head(up):
                mutant.constant = up.spelling
                mutant.constant_at = self._span(up)[0] + self._head(up).index("constexpr")
        self.found.append(mutant)

    def _statement(self, node, above):
        """The words of the statement around a place; of a compound one those before its body."""
        whole = node
        for up, inner in zip(reversed(above), list(reversed(above[1:] + [node]))):
            if up.kind in (Kind.COMPOUND_STMT, Kind.NAMESPACE, Kind.TRANSLATION_UNIT):
                whole = inner
                break
        words = [token.spelling for token in whole.get_tokens()]
        body = next((i for i, word in enumerate(words) if word == "{" and i > 0), len(words))
        return " ".join(words[:min(body, 30)])

    def _walk(self, node, above):
        if self._is_fixed(node, above):
            return
        begin, end = self._span(node)
        if end > begin:
            self._look(node, above)
        children = list(node.get_children())
        for child in children[1:] if node.kind == Kind.CASE_STMT else children:
            self._walk(child, above + [node])

    def _head(self, node):
        """A declaration up to its body or value."""
        return re.split(r"[={(]", self._source(node), maxsplit=1)[0]

    def _is_fixed(self, node, above):
        """What must be known while the program is compiled cannot be switched."""
        if node.kind in FUNCTIONS:
            return "constexpr" in self._head(node)
        if node.kind == Kind.VAR_DECL and above:  # a constant of a class
            return above[-1].kind in (Kind.CLASS_DECL, Kind.STRUCT_DECL)
        return node.kind in (Kind.STATIC_ASSERT, Kind.ENUM_DECL, Kind.TYPE_ALIAS_DECL)

    def _look(self, node, above):
        kind = node.kind
        if above and above[-1].kind == Kind.COMPOUND_STMT:
            self._drop(node, above)
        if kind in (Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR) or (
                kind == Kind.CALL_EXPR and node.spelling.startswith("operator")):
            self._operator(node, above)
        elif kind == Kind.UNARY_OPERATOR:
            self._unary(node, above)
        elif kind == Kind.CALL_EXPR:
            self._swap(node, above)
        elif kind in (Kind.INTEGER_LITERAL, Kind.FLOATING_LITERAL, Kind.CXX_BOOL_LITERAL_EXPR):
            self._constant(node, above)
        elif kind == Kind.DECL_REF_EXPR:
            self._enumerator(node, above)
        elif kind == Kind.IF_STMT:
            self._guard(node, above)
        elif kind == Kind.CONDITIONAL_OPERATOR:
            condition = next(node.get_children())
            source = self._source(condition)
            self._add(condition, above + [node], f"{source} negated",
                      (*self._span(condition), f"(mutants::on(#) ? !({source}) : !!(", "))"))

    def _drop(self, node, above):
        is_expression = node.kind.is_expression()
        is_void_return = node.kind == Kind.RETURN_STMT and not list(node.get_children())
        function = above[-2]
        if (function.kind in FUNCTIONS and function.result_type.kind != TypeKind.VOID
                and node == list(above[-1].get_children())[-1]):
            return  # the function would end without a result, which is undefined
        if is_expression or is_void_return or node.kind in STATEMENTS:
            begin, end = self._span(node)
            self._add(node, above, "dropped", (begin, end, "if (!mutants::on(#)) ", ""))

    def _operator(self, node, above):
        children = list(node.get_children())
        if node.kind == Kind.CALL_EXPR:  # an overloaded one: left, operator, right
            if len(children) != 3:
                return
            left, right = children[0], children[2]
        elif len(children) == 2:
            left, right = children
        else:
            return
        between = self.text[self._span(left)[1]:self._span(right)[0]].decode()
        old = re.sub(r"\s|//.*", "", between)
        stream = node.kind == Kind.CALL_EXPR and old in ("<<", ">>", "*", "/", "%")
        text_sum = old == "+" and ("String" in node.type.spelling or "string" in node.type.spelling)
        if old not in OPERATORS or stream or text_sum:
            return
        new = OPERATORS[old]
        changed = f"{self._source(left)} {new} {self._source(right)}"
        self._add(node, above, f"{old} becomes {new}",
                  (*self._span(node), f"(mutants::on(#) ? ({changed}) : (", "))"))

    def _unary(self, node, above):
        source = self._source(node)
        for old, new in (("!", "!!"), ("++", "--"), ("--", "++"), ("-", "+")):
            if source.startswith(old) and not (old == "!" and source.startswith("!=")):
                changed = new + source[len(old):]
                self._add(node, above, f"{old} becomes {'nothing' if old in '!-' else new}",
                          (*self._span(node), f"(mutants::on(#) ? ({changed}) : (", "))"))
                return

    def _constant(self, node, above):
        source = self._source(node)
        if source in ("true", "false"):
            new = {"true": "false", "false": "true"}[source]
        elif re.fullmatch(r"[\d']+[uUlLzZ]*", source):
            digits = re.match(r"[\d']+", source)[0]
            is_colour = any(up.spelling == "QColor" for up in above[-3:])
            step = 64 if is_colour else 1  # one step of a colour is not seen
            new = str(int(digits.replace("'", "")) + step) + source[len(digits):]
        elif re.fullmatch(r"\d+\.\d*f?", source):
            new = f"({source} + 1)"
        else:
            return
        self._add(node, above, f"{source} becomes {new}",
                  (*self._span(node), f"(mutants::on(#) ? {new} : ", ")"))

    def _enumerator(self, node, above):
        """Another value of an enumeration of the program's own."""
        told = node.referenced
        if told is None or told.kind != Kind.ENUM_CONSTANT_DECL:
            return
        if str(told.location.file).startswith("/usr/"):
            return
        values = [value for value in told.semantic_parent.get_children()
                  if value.kind == Kind.ENUM_CONSTANT_DECL]
        place = next(i for i, value in enumerate(values) if value.spelling == told.spelling)
        new = values[(place + 1) % len(values)].spelling
        source = self._source(node)
        if len(values) > 1 and source.endswith(told.spelling):
            changed = source[:-len(told.spelling)] + new
            self._add(node, above, f"{source} becomes {changed}",
                      (*self._span(node), f"(mutants::on(#) ? {changed} : ", ")"))

    def _swap(self, node, above):
        """Arguments of the same type, beside each other, change places."""
        if node.spelling in ("min", "max", "clamp"):
            return
        begin, end = self._span(node)
        given = [a for a in node.get_arguments()
                 if a is not None and begin <= a.extent.start.offset < a.extent.end.offset <= end]
        for one, other in zip(given, given[1:]):
            kinds = {re.sub(r"\bconst\b|&|\s", "", a.type.get_canonical().spelling)
                     for a in (one, other)}
            first, second = self._source(one), self._source(other)
            if len(kinds) == 1 and first != second and not (first + second).startswith("{"):
                self._add(node, above, f"{first} and {second} swapped",
                          (*self._span(one), f"(mutants::on(#) ? ({second}) : (", "))"),
                          (*self._span(other), f"(mutants::on(#) ? ({first}) : (", "))"))

    def _guard(self, node, above):
        children = list(node.get_children())
        condition = children[0]
        before = self.text[node.extent.start.offset:condition.extent.start.offset].decode()
        if not condition.kind.is_expression() or ";" in before or "constexpr" in before:
            return
        self._add(condition, above + [node], "guard dropped",
                  (*self._span(condition), "(mutants::on(#) || (", "))"))


def find(file, path, arguments):
    """The changes of one file."""
    return Finder(file, path, arguments).found


def written(text, mutants):
    """The source with all changes in it."""
    inserts = set()
    for order, mutant in enumerate(mutants):
        for begin, end, before, after in mutant.wraps:
            size = end - begin
            before = before.replace("#", str(mutant.number), 1)
            # At one place the wider change begins first and ends last.
            inserts.add((begin, 1, -size, order, re.sub(r"\s*//.*|\n", " ", before)))
            inserts.add((end, 0, size, -order, after))
        if mutant.constant:
            inserts.add((mutant.constant_at, 0, 0, 0, "const /*"))
            inserts.add((mutant.constant_at + len("constexpr"), 0, 0, 0, "*/"))
    result, done = [], 0
    for place, *_, inserted in sorted(inserts):
        result += [text[done:place], inserted.encode()]
        done = place
    return b"".join(result + [text[done:]])
