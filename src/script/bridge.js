// What a script touches is made here: one prototype for each class of objects, whose accessors call
// the gate, and behind it a guard that makes every other name an error. The gate is the C++ side.
(function (gate, bridgeFile) {
    "use strict";

    const kNoSuchMember = 438;

    // Names that the script engine itself asks every object for.
    const askedByEngine = { then: true, toJSON: true };

    /// An error's place is where the script stands, not this file.
    function locate(error) {
        for (const line of String(error.stack).split("\n")) {
            const parts = /^[^@]*@(.*):(-?\d+)$/.exec(line);
            if (parts && parts[1] !== bridgeFile && Number(parts[2]) > 0) {
                error.fileName = parts[1];
                error.lineNumber = Number(parts[2]);
                break;
            }
        }
        return error;
    }

    function makeError(number, description, source) {
        const error = new Error(description);
        error.number = number;
        error.description = description;
        error.source = source;
        return locate(error);
    }

    // The engine words the call of a missing member its own way; the number and the reason stay readable.
    const missing = /Error: (.* has no member \w+)/;
    for (const [name, read] of [["number", (found) => found ? kNoSuchMember : undefined],
                                ["description", (found, error) => found ? found[1] : error.message]])
        Object.defineProperty(TypeError.prototype, name, {
            get: function () { return read(missing.exec(this.message), this); },
            configurable: true,
        });

    function makeGuard(className) {
        function refuse(name) {
            throw makeError(kNoSuchMember, className + " has no member " + String(name), className);
        }
        return new Proxy(Object.create(null), {
            get: function (target, name) {
                if (typeof name === "symbol")
                    return undefined;
                if (name in Object.prototype)
                    return Object.prototype[name];
                return askedByEngine[name] === true ? undefined : refuse(name);
            },
            set: function (target, name) {
                refuse(name);
            },
        });
    }

    function methodAccessor(className, id, name) {
        const method = function () {
            return gate.call(this.__zkp, id, arguments.length, arguments);
        };
        return {
            get: function () { return method; },
            set: function () {
                throw makeError(kNoSuchMember, className + "." + name + " is a method and can't be written",
                                className);
            },
        };
    }

    function propertyAccessor(id) {
        return {
            get: function () { return gate.get(this.__zkp, id); },
            set: function (value) { gate.set(this.__zkp, id, value); },
            enumerable: true,
        };
    }

    return {
        makeError: makeError,
        locate: locate,

        /// `members` are triples of id, name and whether it is a method.
        makeClass: function (className, members) {
            const prototype = Object.create(makeGuard(className));
            for (const [id, name, isMethod] of members) {
                Object.defineProperty(prototype, name,
                                      isMethod ? methodAccessor(className, id, name) : propertyAccessor(id));
            }
            Object.defineProperty(prototype, "toString", { value: () => "[object " + className + "]" });
            return prototype;
        },

        makeConstructor: function (className, prototype) {
            const constructor = function () {
                return gate.create(className, arguments.length);
            };
            constructor.prototype = prototype;
            Object.defineProperty(prototype, "constructor", { value: constructor });
            return constructor;
        },

        makeFacade: function (prototype, handle) {
            return Object.create(prototype, { __zkp: { value: handle } });
        },

        /// An object that can be called: `rs.Fields("X")` is `rs.Fields.Item("X")`.
        makeCallableFacade: function (prototype, handle) {
            const facade = (...list) => facade.Item(...list);
            delete facade.name;
            delete facade.length;
            Object.setPrototypeOf(facade, prototype);
            Object.defineProperty(facade, "__zkp", { value: handle });
            return facade;
        },

        /// A function that makes the argument objects of one event: these names and no others.
        makeArgumentMaker: function (className, names) {
            const guard = makeGuard(className);
            return function (...values) {
                const argument = {};
                for (let i = 0; i < names.length; ++i)
                    argument[names[i]] = values[i];
                return Object.setPrototypeOf(argument, guard);
            };
        },

        /// Whatever a handler throws is caught here, since the engine tells C++ only about Error objects.
        invoke: function (handler, argument) {
            try {
                return { value: argument === undefined ? handler() : handler(argument) };
            } catch (thrown) {
                return { thrown: thrown };
            }
        },

        print: function () {
            gate.print(Array.prototype.map.call(arguments, String).join(" "));
        },
    };
})
