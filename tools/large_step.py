#!/usr/bin/env python3
"""Writes a made-up STEP file of distinct models: large_step.py MODELS FILE

One assembly holds subassemblies of up to 99 parts; every part has a placement and two corner points.
"""
import sys

PARTS_EACH = 99


class StepFile:
    def __init__(self, out):
        self.out = out
        self.last = 0

    def add(self, text):
        self.last += 1
        self.out.write(f"#{self.last}={text};\n")
        return self.last

    def product(self, name, items, context):
        product = self.add(f"PRODUCT('{name}','{name}','',())")
        formation = self.add(f"PRODUCT_DEFINITION_FORMATION('','',#{product})")
        definition = self.add(f"PRODUCT_DEFINITION('','',#{formation},$)")
        listed = ",".join(f"#{item}" for item in items)
        shape = self.add(f"SHAPE_REPRESENTATION('',({listed}),#{context})")
        subject = self.add(f"PRODUCT_DEFINITION_SHAPE('','',#{definition})")
        self.add(f"SHAPE_DEFINITION_REPRESENTATION(#{subject},#{shape})")
        return definition, shape, items[0]

    def axis(self, x):
        point = self.add(f"CARTESIAN_POINT('',({x}.,0.,0.))")
        return self.add(f"AXIS2_PLACEMENT_3D('',#{point},$,$)")

    def place(self, parent, child, target):
        usage = self.add("NEXT_ASSEMBLY_USAGE_OCCURRENCE"
                         f"('','','',#{parent[0]},#{child[0]},$)")
        move = self.add(f"ITEM_DEFINED_TRANSFORMATION('','',#{child[2]},#{target})")
        relation = self.add(f"(REPRESENTATION_RELATIONSHIP('','',#{child[1]},#{parent[1]})"
                            f"REPRESENTATION_RELATIONSHIP_WITH_TRANSFORMATION(#{move})"
                            "SHAPE_REPRESENTATION_RELATIONSHIP())")
        subject = self.add(f"PRODUCT_DEFINITION_SHAPE('','',#{usage})")
        self.add(f"CONTEXT_DEPENDENT_SHAPE_REPRESENTATION(#{relation},#{subject})")


def part(step, number, context):
    high = step.add(f"CARTESIAN_POINT('',({number % 90 + 10}.,20.,5.))")
    return step.product(f"part_{number}", [step.axis(0), high], context)


def assembly(step, name, children, context):
    targets = [step.axis(10 * place) for place in range(len(children))]
    made = step.product(name, [step.axis(0), *targets], context)
    for child, target in zip(children, targets):
        step.place(made, child, target)
    return made


def write(models, out):
    out.write("ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('AUTOMOTIVE_DESIGN'));\nENDSEC;\nDATA;\n")
    step = StepFile(out)
    unit = step.add("(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.))")
    context = step.add("(GEOMETRIC_REPRESENTATION_CONTEXT(3)"
                       f"GLOBAL_UNIT_ASSIGNED_CONTEXT((#{unit}))REPRESENTATION_CONTEXT('',''))")
    left = models - 1  # the top is one
    groups = []
    number = 0
    while left > 1:
        parts = min(PARTS_EACH, left - 1)
        children = [part(step, number + i, context) for i in range(parts)]
        number += parts
        groups.append(assembly(step, f"group_{len(groups)}", children, context))
        left -= parts + 1
    if left == 1:
        groups.append(part(step, number, context))
    assembly(step, "top", groups, context)
    out.write("ENDSEC;\nEND-ISO-10303-21;\n")


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    with open(sys.argv[2], "w", encoding="ascii") as out:
        write(int(sys.argv[1]), out)


main()
