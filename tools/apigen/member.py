"""One function of a family: what the clauses come to for its types and its form."""
import re

import expression
from building import Building
from model import FORMS, Function
from signature import argument, known_names, parse_args, parse_checks, status, with_suffix
from statements import IDENTIFIER, Mistake, at, match, split_list


class Member:
    def __init__(self, parser, said, place, family, full, form, args, binding):
        self.api, self.half, self.said, self.place = parser.api, parser.half, said, place
        self.family, self.full, self.form, self.binding = family, full, form, binding
        self.source, self.topic = parser.source, parser.topic
        self.index = self.one_of("idx", "auto", {"auto", "none", "only", "same", "written"})
        self.read_args(args)

    def within(self, word):
        return at(self.said.place(word, self.place))

    def one_of(self, word, default, allowed):
        with self.within(word):
            text = self.said.text(word, default)
            if text not in allowed:
                raise Mistake(f"unknown {word} {text}")
            return text

    def read_args(self, args):
        """The argument list, and how the kernel is called: with all arguments in their order, or as `runs` says."""
        written = self.index == "written"
        with at(self.place):
            plain = parse_args(args, self.binding, self.api, written)
        self.args, self.call, self.plain_call = plain, [a.name for a in plain], [a.name for a in plain]
        clause = self.said.forms.get(FORMS[self.form])
        if clause:
            with at(clause.place):
                pattern = r"\w+\s*\((.*?)\)(?:\s*runs\s*\((.*)\))?"
                m = match(pattern, clause.rest, "no form NAME (arguments) runs (values)")
                self.args = parse_args(m[1], self.binding, self.api, written)
                self.call = split_list(m[2]) if m[2] else [a.name for a in self.args]
                for name in self.call:
                    argument(name, self.args)
                for a in self.args:
                    if a.name not in self.call:
                        raise Mistake(f"runs passes no {a.name} on")
                if m[2] and len(self.call) != len(plain):
                    raise Mistake(f"runs has {len(self.call)} values, the plain form {len(plain)} arguments")
        if self.form.endswith("Sfs"):
            scale = parse_args("int scaleFactor", {}, self.api, False)
            self.args = self.args + scale
            self.call = self.call + ["scaleFactor"]
            self.plain_call = self.plain_call + ["scaleFactor"]
        self.building = Building(self.said.building.values(), self.args, self.binding)
        with at(self.place):
            for a in self.args:
                r = a.rows
                for text in [r.count, r.width, r.step, r.row, r.column] if r else [a.extent]:
                    if text:
                        expression.check(text, self.building.known)
                if a.room:
                    expression.check(a.room, self.building.known)

    def failures(self):
        """Found by the entry shell, by the kernel before it writes, by the kernel after it has written."""
        found, before = [], []
        for word in ("checks", "fails", "late"):
            shell = word == "checks"
            known = known_names(self.args) if shell else self.building.known  # the shell has nothing but the arguments
            with self.within(word):
                text = self.said.text(word, "none")
                found.append(parse_checks(text, self.args, self.api, words=not shell, before=before, known=known))
                before = before + found[-1]
        return found

    def returns(self):
        with self.within("returns"):
            text = with_suffix(self.said.text("returns", "void" if self.half == "own" else "status"), self.binding)
            public = {t.public for t in self.api.types.values()}
            m = re.fullmatch(r"(?:const )?(\w+)\*", text)
            known = m[1] in public | set(self.api.records) | {"char", "void"} if m else text in public | {
                "status", "void", "int", "unsigned int"}
            if not known:
                raise Mistake(f"unknown type {text}")
            return text

    def in_place(self):
        names = {a.name for a in self.args}
        found = []
        with self.within("in_place"):
            for pair in split_list(self.said.text("in_place")):
                d, s = match(r"(\w+)\s*=\s*(\w+)", pair, "no DESTINATION=SOURCE").groups()
                if {d, s} <= names:
                    destination, source = argument(d, self.args), argument(s, self.args)
                    if {destination.kind, source.kind} != {"array"} or destination.const:
                        raise Mistake(f"no array that is written and one that is read: {pair}")
                    if destination.type != source.type:
                        raise Mistake(f"{d} and {s} hold different types")
                    found.append((d, s))
        return found

    def said_of_statuses(self, returns):
        words = [w for w in ("checks", "fails", "late", "warns") if w in self.said.once]
        if returns == "status" and self.half == "ipp" and "checks" not in self.said.once:
            raise Mistake("no checks: a function that returns a status says what it checks, or `checks none`")
        if returns != "status" and any(self.said.text(w) != "none" for w in words):
            raise Mistake(f"{words[0]}: the function returns no status", self.said.once[words[0]].place)

    def function(self):
        returns = self.returns()
        with at(self.place):
            self.said_of_statuses(returns)
            if not self.said.text("formula") and not self.said.text("doc"):
                raise Mistake("neither formula nor doc")
        with self.within("kernel"):
            kernel = match(IDENTIFIER + r"(<.+>)?", with_suffix(self.said.text("kernel"), self.binding), "no kernel")[0]
        with self.within("warns"):
            warnings = [status(name, self.api, error=False) for name in self.said.text("warns").split()]
        checks, fails, late = self.failures()
        stdcall = self.half == "ipp" and self.index != "written"
        return Function(
            name=self.full + ("" if self.form == "plain" else self.form),
            family=self.family,
            form=self.form,
            half=self.half,
            convention=self.one_of("convention", "stdcall" if stdcall else "cdecl", {"stdcall", "cdecl"}),
            returns=returns,
            args=self.args,
            checks=checks,
            fails=fails,
            late=late,
            warnings=warnings,
            kernel=kernel,
            call=self.call,
            plain_call=self.plain_call,
            source=self.source,
            bodies=self.api.variants.bodies.get(self.source, []),
            dispatched=self.api.sources[self.source],
            index=self.index,
            topic=self.topic,
            formula=self.said.text("formula"),
            doc=self.said.text("doc"),
            notes=[n.rest for n in self.said.notes],
            in_place=self.in_place(),
            domains=self.building.domains,
            named=self.building.named,
            queries=self.building.queries,
            makers=self.building.makers,
            makes=self.building.made,
            rules=self.building.rules,
            moves_bits="moves" in self.said.once,
            untested=self.said.text("untested"),
            types=[self.binding[k] for k in "TUVW" if k in self.binding],
            place=self.place,
        )
